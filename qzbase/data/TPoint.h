// A point of a curve.
#pragma once

namespace qzbase {

struct TPoint {
  double X = 0;
  double Y = 0;
  bool operator==(const TPoint&) const = default;
};

}  // namespace qzbase
