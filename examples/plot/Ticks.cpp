#include "examples/plot/Ticks.h"

#include <algorithm>
#include <cmath>

namespace plot {

namespace {

constexpr double kMostTicks = 500;
constexpr double kTolerance = 1e-9;  // of a step, for ticks that miss an end by the arithmetic's error

// Powers of ten times the multipliers, in the range.
std::vector<double> DecadeTicks(Range pRange, int pStep, std::initializer_list<int> pMultipliers) {
  std::vector<double> ticks;
  const int last = static_cast<int>(std::floor(std::log10(pRange.max) + kTolerance));
  int exponent = static_cast<int>(std::floor(std::log10(pRange.min)));
  exponent -= ((exponent % pStep) + pStep) % pStep;
  for (; exponent <= last; exponent += pStep)
    for (const int multiplier : pMultipliers) {
      const double value = multiplier * std::pow(10.0, exponent);
      if (value >= pRange.min * (1 - kTolerance) && value <= pRange.max * (1 + kTolerance)) ticks.push_back(value);
    }
  return ticks;
}

// Over less the ticks of a logarithmic axis are those of a linear one.
bool HasDecade(Range pRange) {
  return pRange.max / 10 >= pRange.min;
}

std::u16string Zeros(double pCount) {
  constexpr double kMost = 14;
  return std::u16string(pCount > 0 ? static_cast<std::size_t>(std::min(pCount, kMost)) : 0, u'0');
}

}  // namespace

double NiceStep(double pSpan, double pMost) {
  const double least = pSpan / std::max(pMost, 1.0);
  const double power = std::pow(10.0, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0})
    if (factor * power >= least * (1 - kTolerance)) return factor * power;
  return 10 * power;
}

std::vector<double> StepTicks(Range pRange, double pStep) {
  std::vector<double> ticks;
  const double first = std::ceil(pRange.min / pStep - kTolerance);
  const double count = std::floor(pRange.max / pStep + kTolerance) - first;
  if (!(count <= kMostTicks)) return ticks;
  for (int i = 0; i <= count; ++i) ticks.push_back((first + i) * pStep + 0.0);
  return ticks;
}

Range NiceEnds(Range pRange, double pStep, bool pAtMin, bool pAtMax) {
  const double min = pAtMin ? std::floor(pRange.min / pStep + kTolerance) * pStep : pRange.min;
  const double max = pAtMax ? std::ceil(pRange.max / pStep - kTolerance) * pStep : pRange.max;
  return {std::isfinite(min) ? min : pRange.min, std::isfinite(max) ? max : pRange.max};
}

LogTicks::LogTicks(Range pRange, double pMost, double pDecades) {
  constexpr double kMostMinor = 5;  // for each tick with a label
  constexpr double kSmallest = 0.99e-5;
  constexpr double kLargest = 1.01e6;
  const double decades = std::log10(pRange.max) - std::log10(pRange.min);
  const double most = std::max(pMost, 1.0);
  if (!HasDecade(pRange) && !(pDecades >= 1)) {
    const double step = NiceStep(pRange.max - pRange.min, most);
    labelled = StepTicks(pRange, step);
    format = NumberFormat(pRange, step);
    return;
  }
  const double wanted = pDecades >= 1 ? std::min(pDecades, kMostTicks) : NiceStep(decades, most);
  const int step = std::max(1, static_cast<int>(wanted));
  if (pDecades < 1 && decades * 3 <= most)
    labelled = DecadeTicks(pRange, 1, {1, 2, 5});
  else
    labelled = DecadeTicks(pRange, step, {1});
  minor = step == 1 ? DecadeTicks(pRange, 1, {2, 3, 4, 5, 6, 7, 8, 9}) : DecadeTicks(pRange, 1, {1});
  if (static_cast<double>(minor.size()) > kMostMinor * most) minor.clear();
  if (pRange.min < kSmallest || pRange.max > kLargest) format = u"0E+00";
}

Range LogEnds(Range pRange, double pMost, bool pAtMin, bool pAtMax) {
  if (!HasDecade(pRange)) {
    const Range nice = NiceEnds(pRange, NiceStep(pRange.max - pRange.min, pMost), pAtMin, pAtMax);
    return nice.min > 0 ? nice : pRange;
  }
  Range range = pRange;
  if (pAtMin) {
    const double power = std::pow(10.0, std::floor(std::log10(pRange.min)));
    for (const double factor : {1.0, 2.0, 5.0})
      if (factor * power <= pRange.min * (1 + kTolerance)) range.min = factor * power;
  }
  if (pAtMax) range.max = NiceStep(pRange.max, 1);
  return std::isfinite(range.max) && range.min > 0 ? range : pRange;
}

std::u16string NumberFormat(Range pRange, double pStep) {
  constexpr double kLargest = 1e9;
  constexpr double kSmallest = 1e-4;
  const double size = std::max(std::abs(pRange.min), std::abs(pRange.max));
  const double exponent = std::floor(std::log10(pStep) + kTolerance);
  if (size >= kSmallest && size < kLargest) return exponent < 0 ? u"0." + Zeros(-exponent) : u"0";
  const std::u16string places = Zeros(std::floor(std::log10(size)) - exponent);
  return (places.empty() ? u"0" : u"0." + places) + u"E+00";
}

}  // namespace plot
