// Places on a picture, in pixels from its upper left corner.
#pragma once

namespace plot {

struct Point {
  double x = 0;
  double y = 0;
};

struct Box {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;

  double Width() const { return right - left; }
  double Height() const { return bottom - top; }
  double MiddleX() const { return (left + right) / 2; }
  double MiddleY() const { return (top + bottom) / 2; }
  Box Shrunk(double pBy) const { return {left + pBy, top + pBy, right - pBy, bottom - pBy}; }
};

}  // namespace plot
