// Where the ticks of an axis of numbers stand, and how their labels are written.
//
//   NiceStep(100, 8)          20: 1, 2 or 5 times a power of ten
//   StepTicks({-3, 11}, 5)    0, 5, 10
#pragma once

#include <string>
#include <vector>

#include "examples/plot/Scale.h"

namespace plot {

// The smallest nice step that gives at most `pMost` of them over a span.
double NiceStep(double pSpan, double pMost);

// The multiples of a step in a range; none where they would be absurdly many.
std::vector<double> StepTicks(Range pRange, double pStep);

// The range extended to multiples of the step, at the ends that are asked for.
Range NiceEnds(Range pRange, double pStep, bool pAtMin, bool pAtMax);

// A logarithmic axis: powers of ten with labels, further ticks between them without. Over few decades 2 and 5 have
// labels too; over less than a decade the ticks are those of a linear axis.
struct LogTicks {
  LogTicks(Range pRange, double pMost, double pDecades = 0);  // decades between labels, 0 as is best

  std::vector<double> labelled;
  std::vector<double> minor;
  std::u16string format;
};

// The range extended to such ticks, or to 1, 2 or 5 times a power of ten, at the ends that are asked for.
Range LogEnds(Range pRange, double pMost, bool pAtMin, bool pAtMax);

// A format that shows the multiples of a step with as many decimals as they need, large and tiny ones with exponents.
std::u16string NumberFormat(Range pRange, double pStep);

}  // namespace plot
