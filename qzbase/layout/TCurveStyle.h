// How a curve is drawn.
#pragma once

#include <cstdint>

namespace qzbase {

struct TCurveStyle {
  std::int32_t Pattern = 0;
  std::int32_t Width = 0;
  std::int32_t Color = 0;  // 0x00BBGGRR
  std::int32_t Symbol = 0;
  std::int32_t SymbolSize = 0;
  bool operator==(const TCurveStyle&) const = default;
};

}  // namespace qzbase
