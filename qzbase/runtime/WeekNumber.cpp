#include "qzbase/runtime/WeekNumber.h"

namespace qzbase::runtime {
namespace {

std::int32_t DaysOfYear(std::int32_t pYear) {
  return DayOfYear({.year = pYear, .month = 12, .day = 31});
}

}  // namespace

std::int32_t DayInWeek(const DateParts& pParts, std::int32_t pFirstDay) {
  return (DayOfWeek(pParts) + 7 - pFirstDay) % 7 + 1;
}

std::int32_t WeekOfYear(const DateParts& pParts, std::int32_t pFirstDay, std::int32_t pDaysNeeded) {
  // The day of the week whose year is the year of the whole week, counted from January 1st.
  std::int32_t decidingDay = DayOfYear(pParts) - DayInWeek(pParts, pFirstDay) + 7 - pDaysNeeded;
  if (decidingDay < 0)
    decidingDay += DaysOfYear(pParts.year - 1);
  else if (pDaysNeeded > 1 && decidingDay >= DaysOfYear(pParts.year))
    decidingDay -= DaysOfYear(pParts.year);
  return decidingDay / 7 + 1;
}

}  // namespace qzbase::runtime
