#include "examples/plot/Scale.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace plot {

namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

double Finite(double pValue) {
  return std::clamp(pValue, -kLargest, kLargest);
}

// Where a value lies between two others. Halves, since the distance of large numbers may be too large for a number.
double Fraction(double pValue, double pMin, double pMax) {
  constexpr double kFarthest = 1e4;
  return std::clamp((pValue / 2 - pMin / 2) / (pMax / 2 - pMin / 2), -kFarthest, kFarthest);
}

}  // namespace

void Range::Include(double pValue) {
  min = std::min(min, pValue);
  max = std::max(max, pValue);
}

Range Widened(Range pRange, double pLeast, double pRoom) {
  constexpr double kFewestDigits = 1e-12;
  constexpr double kUsualRoom = 0.1;
  constexpr double kSmallest = 1e-290;  // parts of it are numbers still
  if (std::isnan(pRange.min) || std::isnan(pRange.max)) return {};
  Range range{Finite(std::min(pRange.min, pRange.max)), Finite(std::max(pRange.min, pRange.max))};
  const double size = std::max(std::abs(range.min), std::abs(range.max));
  if (range.max / 2 - range.min / 2 > std::max({size * kFewestDigits, pLeast, kSmallest}) / 2) return range;
  const double room = pRoom > 0 ? pRoom : size > kSmallest ? size * kUsualRoom : 1;
  return {Finite(range.min - room), Finite(range.max + room)};
}

Range LogRange(Range pRange, const std::optional<Range>& pPositive) {
  constexpr double kSmallest = 1e-290;
  constexpr double kUsualSpan = 1000;
  constexpr double kLeastRatio = 1 + 1e-9;
  Range range{std::min(pRange.min, pRange.max), std::max(pRange.min, pRange.max)};
  if (!(range.max > 0)) range.max = pPositive ? pPositive->max : 1;
  range.max = std::clamp(range.max, kSmallest, kLargest);
  if (!(range.min > 0)) range.min = pPositive ? pPositive->min : range.max / kUsualSpan;
  range.min = std::clamp(range.min, kSmallest, range.max);
  return range.max / range.min > kLeastRatio ? range : Range{range.min / 2, Finite(range.max * 2)};
}

Scale::Scale(Range pRange, bool pIsLog, double pFrom, double pTo)
    : range_(pRange), isLog_(pIsLog), from_(pFrom), to_(pTo) {}

double Scale::Pixel(double pValue) const {
  if (isLog_ && !(pValue > 0)) return std::numeric_limits<double>::quiet_NaN();
  const double fraction = isLog_ ? Fraction(std::log10(pValue), std::log10(range_.min), std::log10(range_.max))
                                 : Fraction(pValue, range_.min, range_.max);
  return from_ + fraction * (to_ - from_);
}

}  // namespace plot
