// The axes of a graph.
#pragma once

#include <cstdint>

namespace qzbase {

// Do not change the numbers: they are in people's files and programs.
enum GraphAxis : std::int32_t {
  GAUndefined = 0,
  XAxis = 1,
  YAxis = 2,
  ZAxis = 3,
};

}  // namespace qzbase
