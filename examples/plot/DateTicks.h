// Where the ticks of an axis of dates stand: at whole seconds, minutes, hours, days, weeks (Mondays), months or years,
// as the span asks for.
//
// Places on the axis are days that run evenly; a date before day 0 does not, since its time of day counts forward
// (qzbase/runtime/Date.h).
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "examples/plot/Scale.h"
#include "qzbase/runtime/Date.h"

namespace plot {

double EvenDays(double pDate);
qzbase::runtime::Date DateAt(double pEvenDays);

// One of the two is 0.
struct DateStep {
  std::int64_t seconds = 0;
  std::int32_t months = 0;

  bool operator==(const DateStep&) const = default;
};

// The smallest calendar step that gives at most `pMost` of them over a span.
DateStep NiceDateStep(double pDays, double pMost);

// The calendar step next to a spacing in days: whole months from 28 days on, so that ticks keep their day of the month.
DateStep DateStepOf(double pDays);

// In even days; none where they would be absurdly many. Years outside the calendar have none.
std::vector<double> DateTicks(Range pRange, DateStep pStep);

// The format of a tick's label: no finer than the step, and the day in place of the time at midnight.
std::u16string_view DateFormat(DateStep pStep, double pEvenDays);

}  // namespace plot
