// How the locale's pictures of dates and times fall into pieces: "H:mm:ss 'h'" -> H, ":", mm, ":", ss, " ", "h".
//
// Runs of one of the letters d, M, y, h, H, m, s, t are fields; text in single quotes ('' is a quote) and everything
// else stands for itself. The last quote may be missing.
#pragma once

#include <cstddef>
#include <string_view>

namespace qzbase::os {

struct PicturePiece {
  char16_t letter = 0;       // of a field; 0 for text
  std::u16string_view text;  // as it stands in the picture, without quotes

  bool IsField() const noexcept { return letter != 0; }
  bool IsWeekDay() const noexcept { return letter == u'd' && text.size() > 2; }
};

class PicturePieces {
 public:
  explicit PicturePieces(std::u16string_view pPicture) noexcept : rest_(pPicture) {}

  // False at the end of the picture.
  bool Next(PicturePiece& pPiece) noexcept;

 private:
  std::u16string_view Take(std::size_t pLength) noexcept;

  std::u16string_view rest_;
  bool quoted_ = false;
};

// Whether a day of the month stands in a picture.
bool HasDayOfMonth(std::u16string_view pPicture) noexcept;

}  // namespace qzbase::os
