#include "qzbase/os/LocalePicture.h"

#include <algorithm>

namespace qzbase::os {
namespace {

constexpr std::u16string_view kLetters = u"dMyhHmst";
constexpr std::u16string_view kLettersAndQuote = u"dMyhHmst'";
constexpr char16_t kQuote = u'\'';

}  // namespace

bool PicturePieces::Next(PicturePiece& pPiece) noexcept {
  while (rest_.starts_with(kQuote)) {
    const bool isQuoteItself = quoted_ && rest_.substr(1).starts_with(kQuote);
    Take(1);
    if (isQuoteItself) return pPiece = {0, Take(1)}, true;
    quoted_ = !quoted_;
  }
  if (rest_.empty()) return false;
  const char16_t first = rest_.front();
  if (!quoted_ && kLetters.find(first) != std::u16string_view::npos)
    pPiece = {first, Take(rest_.find_first_not_of(first))};
  else
    pPiece = {0, Take(quoted_ ? rest_.find(kQuote) : rest_.find_first_of(kLettersAndQuote))};
  return true;
}

std::u16string_view PicturePieces::Take(std::size_t pLength) noexcept {
  const std::u16string_view text = rest_.substr(0, pLength);
  rest_.remove_prefix(text.size());
  return text;
}

bool HasDayOfMonth(std::u16string_view pPicture) noexcept {
  PicturePieces pieces(pPicture);
  for (PicturePiece piece; pieces.Next(piece);)
    if (piece.letter == u'd' && !piece.IsWeekDay()) return true;
  return false;
}

}  // namespace qzbase::os
