// The labels of a graph.
#pragma once

#include <cstdint>

namespace qzbase {

// Do not change the numbers: they are in people's files and programs.
enum GraphLabel : std::int32_t {
  GLUndefined = 0,
  GraphTitle = 1,
  Legend = 2,
  FreeLabel = 3,
  BoundLabel = 4,
  AxisTitle = 5,
  AxisLabel = 6,
};

}  // namespace qzbase
