// A point in time as a count of days since 1899-12-30, the fraction being the time of day.
//
// The calendar is the proleptic Gregorian one from year 100 to year 9999. The fraction of a negative date counts
// forward all the same: -1.25 is 06:00 on the day before day 0.
#pragma once

#include <compare>
#include <cstdint>

namespace qzbase::runtime {

struct Date {
  double days = 0;

  constexpr auto operator<=>(const Date&) const = default;
};

inline constexpr double kFirstDate = -657434.0;  // 0100-01-01
inline constexpr double kLastDate = 2958466.0;   // the first instant that is no date any more: 10000-01-01

// A date taken apart, rounded to the nearest second.
struct DateParts {
  std::int32_t year = 1899;
  std::int32_t month = 12;  // 1 to 12
  std::int32_t day = 30;    // 1 to 31
  std::int32_t hour = 0;
  std::int32_t minute = 0;
  std::int32_t second = 0;

  bool operator==(const DateParts&) const = default;
};

// Whether the date, rounded to the nearest second, lies in the calendar's years: as `SplitDate` takes it.
bool IsInCalendar(Date pDate);

// Raises error 5 (invalid argument) outside the calendar's years.
DateParts SplitDate(Date pDate);

// The day count of a calendar day and time of day. The parts must be valid (`IsValidDay`, hours below 24 and so on).
Date MakeDate(const DateParts& pParts);

// A day of the calendar, and one of the years 100 to 9999.
bool IsValidDay(std::int32_t pYear, std::int32_t pMonth, std::int32_t pDay);

// The year that users mean: those of two digits run from 1930 to 2029.
constexpr std::int32_t FullYear(std::int32_t pYear) {
  return pYear < 30 ? pYear + 2000 : pYear < 100 ? pYear + 1900 : pYear;
}

// 0 Monday to 6 Sunday.
std::int32_t DayOfWeek(const DateParts& pParts);

// 1 to 366.
std::int32_t DayOfYear(const DateParts& pParts);

}  // namespace qzbase::runtime
