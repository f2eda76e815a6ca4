// The range of an axis and the labels at its ticks, as its layout says: numbers, dates, enumerations, logarithms.
//
// Ends and spacing that the layout leaves to the host are nice numbers and calendar steps. A spacing that is given
// counts decades on logarithmic axes and days on those of dates; one that makes absurdly many ticks is as good as none.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "examples/plot/Scale.h"
#include "qzbase/layout/CLayoutGraph.h"

namespace plot {

struct Tick {
  double value = 0;
  std::u16string text;
  bool isMinor = false;  // between those with labels
};

struct TickPlan {
  Range range;  // of the axis
  std::vector<Tick> ticks;
};

// The ends of an axis whose values cover `pData`, before they are made nice.
Range AxisRange(const qzbase::CLayoutGraph& pLayout, qzbase::GraphAxis pAxis, const std::optional<Range>& pData);

// At most `pMost` steps between labels where the spacing is the host's. The ends of axes of dates stay as they are.
TickPlan PlanTicks(const qzbase::CLayoutGraph& pLayout, qzbase::GraphAxis pAxis, Range pRange, double pMost);

// A value of an axis as text, by a format of the axis's type.
std::u16string AxisText(const qzbase::CLayoutGraph& pLayout, qzbase::GraphAxis pAxis, double pValue,
                        std::u16string_view pFormat);

}  // namespace plot
