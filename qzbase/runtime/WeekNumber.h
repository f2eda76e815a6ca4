// Weeks of the year, under the three customs of telling the first one.
#pragma once

#include <cstdint>

#include "qzbase/runtime/Date.h"

namespace qzbase::runtime {

// The day's place in its week, 1 to 7. `pFirstDay`: 0 Monday to 6 Sunday.
std::int32_t DayInWeek(const DateParts& pParts, std::int32_t pFirstDay);

// 1 to 54. A week belongs to the year in which it has at least `pDaysNeeded` days: 7 full weeks only, 4 most of the
// week. 1 begins with the week of January 1st and cuts the last week off at the end of the year.
std::int32_t WeekOfYear(const DateParts& pParts, std::int32_t pFirstDay, std::int32_t pDaysNeeded);

}  // namespace qzbase::runtime
