// The values of an axis on the pixels of a picture.
//
//   Scale scale({0, 10}, false, 100, 300);
//   scale.Pixel(5);                          // 200
//
// A logarithmic scale has no place for values up to 0. A reversed one has its pixels the other way round.
#pragma once

#include <optional>

namespace plot {

struct Range {
  double min = 0;
  double max = 1;

  bool Holds(double pValue) const { return pValue >= min && pValue <= max; }
  void Include(double pValue);
};

// The range with its ends in order and apart: where they are not farther from each other than `pLeast`, or so close
// that ticks between them had one text, there is `pRoom` on both sides (0: a tenth of the value).
Range Widened(Range pRange, double pLeast = 0, double pRoom = 0);

// A range that a logarithmic scale can show: positive ends, taken from `pPositive`, the positive values to be shown,
// where they are not.
Range LogRange(Range pRange, const std::optional<Range>& pPositive);

class Scale {
 public:
  // `pRange` is widened, and positive where logarithmic. Its minimum lies at `pFrom`, its maximum at `pTo`.
  Scale(Range pRange, bool pIsLog, double pFrom, double pTo);

  const Range& Values() const { return range_; }
  bool Shows(double pValue) const { return range_.Holds(pValue); }
  // Values outside lie outside, yet not farther than some pictures. Not-a-number where there is no place.
  double Pixel(double pValue) const;

 private:
  Range range_;
  bool isLog_;
  double from_;
  double to_;
};

}  // namespace plot
