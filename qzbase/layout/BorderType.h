// The borders of a graph or table.
#pragma once

#include <cstdint>

namespace qzbase {

// Do not change the numbers: they are in people's files and programs.
enum BorderType : std::int32_t {
  GBUndefined = 0,
  BorderNone = 1,
  Border2D = 2,
  Border3D = 3,
};

}  // namespace qzbase
