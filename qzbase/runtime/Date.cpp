#include "qzbase/runtime/Date.h"

#include <chrono>
#include <cmath>
#include <optional>

#include "qzbase/runtime/AutomationError.h"

namespace qzbase::runtime {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days kDayZero = std::chrono::year(1899) / 12 / 30;
constexpr std::int32_t kSecondsPerDay = 86400;

// What a day count may lack of the half second it was meant to hold; automation hosts grant the same.
constexpr double kHalfSecondTolerance = 1e-11;

sys_days DayOf(std::int32_t pYear, std::int32_t pMonth, std::int32_t pDay) {
  return std::chrono::year(pYear) / static_cast<int>(pMonth) / static_cast<int>(pDay);
}

sys_days DayOf(const DateParts& pParts) {
  return DayOf(pParts.year, pParts.month, pParts.day);
}

struct DayAndSecond {
  std::int32_t day;
  std::int32_t second;
};

// Rounded to the nearest second; empty outside the calendar's years.
std::optional<DayAndSecond> Rounded(Date pDate) {
  // The whole first day counts, though with its fraction it lies below `kFirstDate`. Not-a-number fails as well.
  if (!(pDate.days > kFirstDate - 1 && pDate.days < kLastDate)) return std::nullopt;
  const double wholeDays = std::trunc(pDate.days);
  auto day = static_cast<std::int32_t>(wholeDays);
  auto seconds = static_cast<std::int32_t>(
      std::lround((std::abs(pDate.days - wholeDays) + kHalfSecondTolerance) * kSecondsPerDay));
  if (seconds == kSecondsPerDay) {
    seconds = 0;
    ++day;
  }
  if (day >= kLastDate) return std::nullopt;
  return DayAndSecond{day, seconds};
}

}  // namespace

bool IsInCalendar(Date pDate) {
  return Rounded(pDate).has_value();
}

DateParts SplitDate(Date pDate) {
  const std::optional<DayAndSecond> rounded = Rounded(pDate);
  if (!rounded) Raise(RuntimeError::InvalidArgument);
  const std::int32_t seconds = rounded->second;
  const year_month_day date(kDayZero + days(rounded->day));
  return {.year = static_cast<int>(date.year()),
          .month = static_cast<std::int32_t>(static_cast<unsigned>(date.month())),
          .day = static_cast<std::int32_t>(static_cast<unsigned>(date.day())),
          .hour = seconds / 3600,
          .minute = seconds / 60 % 60,
          .second = seconds % 60};
}

Date MakeDate(const DateParts& pParts) {
  double count = static_cast<double>((DayOf(pParts) - kDayZero).count());
  const double sign = count < 0 ? -1 : 1;
  // Part by part: what automation hosts have made of the same texts must be equal to the last bit.
  count += sign * pParts.hour / 24;
  count += sign * pParts.minute / 1440;
  count += sign * pParts.second / kSecondsPerDay;
  return {count};
}

bool IsValidDay(std::int32_t pYear, std::int32_t pMonth, std::int32_t pDay) {
  if (pYear < 100 || pYear > 9999 || pMonth < 1 || pMonth > 12 || pDay < 1 || pDay > 31) return false;
  return (std::chrono::year(pYear) / static_cast<int>(pMonth) / static_cast<int>(pDay)).ok();
}

std::int32_t DayOfWeek(const DateParts& pParts) {
  return static_cast<std::int32_t>(std::chrono::weekday(DayOf(pParts)).iso_encoding()) - 1;
}

std::int32_t DayOfYear(const DateParts& pParts) {
  return static_cast<std::int32_t>((DayOf(pParts) - DayOf(pParts.year, 1, 1)).count()) + 1;
}

}  // namespace qzbase::runtime
