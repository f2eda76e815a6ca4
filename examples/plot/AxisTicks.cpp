#include "examples/plot/AxisTicks.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "examples/plot/DateTicks.h"
#include "examples/plot/Ticks.h"
#include "qzbase/text/GCConvert.h"

using namespace qzbase;

namespace plot {

namespace {

bool IsDate(const CLayoutGraph& pLayout, GraphAxis pAxis) {
  return pLayout.AxisType(pAxis) == EVTDate;
}

bool IsLog(const CLayoutGraph& pLayout, GraphAxis pAxis) {
  return pLayout.AxisIsLog(pAxis) && !IsDate(pLayout, pAxis);
}

// 0 where the spacing is the host's.
double GivenSpacing(const CLayoutGraph& pLayout, GraphAxis pAxis) {
  return pLayout.AutoSpacing(pAxis) ? 0 : std::max(0.0, pLayout.TickSpacing(pAxis));
}

Tick TickAt(const CLayoutGraph& pLayout, GraphAxis pAxis, double pValue, std::u16string_view pFormat) {
  const std::u16string& format = pLayout.AxisFormat(pAxis);
  return {.value = pValue, .text = AxisText(pLayout, pAxis, pValue, format.empty() ? pFormat : format)};
}

TickPlan PlanDates(const CLayoutGraph& pLayout, GraphAxis pAxis, Range pRange, double pMost) {
  const double spacing = GivenSpacing(pLayout, pAxis);
  DateStep step = DateStepOf(spacing);
  std::vector<double> values = spacing > 0 ? DateTicks(pRange, step) : std::vector<double>();
  if (values.empty()) {
    step = NiceDateStep(pRange.max - pRange.min, pMost);
    values = DateTicks(pRange, step);
  }
  TickPlan plan{.range = pRange, .ticks = {}};
  if (pRange.min == kInvalidDate.days) return plan;  // nobody has said which dates
  plan.ticks.reserve(values.size());
  for (const double value : values) plan.ticks.push_back(TickAt(pLayout, pAxis, value, DateFormat(step, value)));
  return plan;
}

TickPlan PlanLog(const CLayoutGraph& pLayout, GraphAxis pAxis, Range pRange, double pMost) {
  TickPlan plan{.range = LogEnds(pRange, pMost, pLayout.AutoMin(pAxis), pLayout.AutoMax(pAxis)), .ticks = {}};
  const LogTicks ticks(plan.range, pMost, GivenSpacing(pLayout, pAxis));
  plan.ticks.reserve(ticks.labelled.size() + ticks.minor.size());
  for (const double value : ticks.labelled) plan.ticks.push_back(TickAt(pLayout, pAxis, value, ticks.format));
  for (const double value : ticks.minor) plan.ticks.push_back({.value = value, .text = {}, .isMinor = true});
  return plan;
}

// Y ends at ticks, X as near to its values as round numbers allow. An item of an enumeration keeps its distance from
// the ends.
Range Ends(const CLayoutGraph& pLayout, GraphAxis pAxis, Range pRange, double pStep) {
  constexpr double kRoundParts = 5;  // of a step
  if (pLayout.AxisType(pAxis) == EVTEnum) return pRange;
  const double step = pAxis == XAxis ? NiceStep(pStep, kRoundParts) : pStep;
  return NiceEnds(pRange, step, pLayout.AutoMin(pAxis), pLayout.AutoMax(pAxis));
}

TickPlan PlanNumbers(const CLayoutGraph& pLayout, GraphAxis pAxis, Range pRange, double pMost) {
  double step = GivenSpacing(pLayout, pAxis);
  if (!(step > 0) || StepTicks(pRange, step).empty()) {
    // The distance of the ends may be too large for a number.
    step = NiceStep(std::min(pRange.max - pRange.min, std::numeric_limits<double>::max()), pMost);
    if (pLayout.AxisType(pAxis) != EVTDouble) step = std::max(step, 1.0);
  }
  TickPlan plan{.range = Ends(pLayout, pAxis, pRange, step), .ticks = {}};
  const std::u16string format = NumberFormat(plan.range, step);
  const std::vector<double> values = StepTicks(plan.range, step);
  plan.ticks.reserve(values.size());
  for (const double value : values) plan.ticks.push_back(TickAt(pLayout, pAxis, value, format));
  return plan;
}

}  // namespace

Range AxisRange(const CLayoutGraph& pLayout, GraphAxis pAxis, const std::optional<Range>& pData) {
  constexpr double kSecond = 1.0 / 86400;
  constexpr double kDay = 1;
  const bool isDate = IsDate(pLayout, pAxis);
  Range range{pLayout.AxisMin(pAxis), pLayout.AxisMax(pAxis)};
  if (isDate) range = {EvenDays(range.min), EvenDays(range.max)};
  const double room = pLayout.AxisType(pAxis) == EVTEnum ? 0.5 : 0;
  if (pData && pLayout.AutoMin(pAxis)) range.min = pData->min - room;
  if (pData && pLayout.AutoMax(pAxis)) range.max = pData->max + room;
  if (isDate) return Widened(range, kSecond, kDay);
  return IsLog(pLayout, pAxis) ? LogRange(range, pData) : Widened(range);
}

TickPlan PlanTicks(const CLayoutGraph& pLayout, GraphAxis pAxis, Range pRange, double pMost) {
  if (IsDate(pLayout, pAxis)) return PlanDates(pLayout, pAxis, pRange, pMost);
  if (IsLog(pLayout, pAxis)) return PlanLog(pLayout, pAxis, pRange, pMost);
  return PlanNumbers(pLayout, pAxis, pRange, pMost);
}

std::u16string AxisText(const CLayoutGraph& pLayout, GraphAxis pAxis, double pValue, std::u16string_view pFormat) {
  constexpr double kMostItems = 32767;
  if (IsDate(pLayout, pAxis)) {
    const runtime::Date date = DateAt(pValue);
    return runtime::IsInCalendar(date) ? GCConvert::DateToString(date, pFormat) : GCConvert::StrInvalid();
  }
  if (pLayout.AxisType(pAxis) != EVTEnum) return GCConvert::DoubleToString(pValue, pFormat);
  if (!(std::abs(pValue) <= kMostItems)) return {};
  return GCConvert::EnumToString(static_cast<std::int32_t>(std::lround(pValue)), pLayout.AxisFormat(pAxis));
}

}  // namespace plot
