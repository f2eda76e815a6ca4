// How a label of a graph is drawn.
#pragma once

#include <cstdint>
#include <string>

namespace qzbase {

struct TLabelStyle {
  std::u16string FontName;
  double FontSize = 0;
  std::int32_t FontStyle = 0;  // bits: 1 bold, 2 italic, 4 underlined, 8 struck through
  std::int32_t ForeColor = 0;  // 0x00BBGGRR
  std::int32_t BackColor = 0;  // 0x00BBGGRR
  std::int32_t BorderWidth = 0;
  std::int32_t Orientation = 0;
  std::int32_t Rotation = 0;
  bool operator==(const TLabelStyle&) const = default;
};

}  // namespace qzbase
