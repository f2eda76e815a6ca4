// A font as it is chosen in a dialog.
#pragma once

#include <cstdint>
#include <string>

namespace qzbase {

struct TFontStyle {
  std::u16string Name;
  std::int32_t Size = 0;
  std::int32_t Style = 0;  // bits: 1 bold, 2 italic, 4 underlined, 8 struck through
  std::int32_t Color = 0;  // 0x00BBGGRR
  bool operator==(const TFontStyle&) const = default;
};

}  // namespace qzbase
