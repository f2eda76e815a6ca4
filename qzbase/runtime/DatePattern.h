// Dates through patterns ("dd.mm.yyyy hh:nn:ss") and named formats ("Long Date", "Short Time").
//
//   d dd ddd dddd     day: 8 08 Mon Monday            h hh      hour          n nn  minute        s ss  second
//   m mm mmm mmmm     month: 3 03 Mar March           m mm      minute: the first one behind an hour, no day between
//   yy yyyy y         year: 04 2004; day of the year  q w ww    quarter, day of the week, week of the year
//   ddddd dddddd      short and long date             ttttt c   long time; short date and long time
//   am/pm a/p         half of the day as spelled      ampm      the locale's text for it
//   / :               the locale's delimiters         "x" \x    x itself, as every other character is
//
// The letters ignore case. A month's name is the one that goes with a day where the pattern has a day. A mark for the
// half of the day makes the hour before it one of 12 hours. Only the first section of a pattern divided by ";" counts.
//
// Named formats: General Date, Long Date, Medium Date, Short Date, Long Time, Medium Time, Short Time, with or without
// the blank.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

// What "w" and "ww" count from. 0: the locale's own setting.
struct WeekRule {
  std::int32_t firstDay = 7;   // 1 Monday to 7 Sunday
  std::int32_t firstWeek = 1;  // 1 the week of January 1st, 2 the first of four days, 3 the first full week
};

// An empty pattern is "General Date". Raises error 5 outside the calendar's years, for a week rule out of range and for
// a pattern that is none ("yyyyy", two marks for the half of the day).
std::u16string FormatDate(Date pDate, std::u16string_view pPattern, const LocaleRules& pRules = ThreadLocale(),
                          WeekRule pWeek = {});

// Whether the first thing in a pattern that is not text by itself belongs to dates ("x d 0") rather than to numbers or
// texts ("0 d", "@"). True for the named formats of dates, but also for names of number formats with such letters
// ("General Number"): ask for those first.
bool IsDatePattern(std::u16string_view pPattern);

}  // namespace qzbase::runtime
