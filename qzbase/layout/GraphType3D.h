// The kinds of a 3-D graph.
#pragma once

#include <cstdint>

namespace qzbase {

// Do not change the numbers: they are in people's files and programs.
enum GraphType3D : std::int32_t {
  GTUndefined = 0,
  GTSurface = 1,
  GTContour = 2,
  GTBoth = 3,
};

}  // namespace qzbase
