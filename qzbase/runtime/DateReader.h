// Recognises dates and times in texts as users of a locale write them.
//
// What the locale's own pictures write is read by them (DatePictureReader.h). Everything else is read freely: the order
// of the short date is tried first, then year-month-day, month-day-year, day-month-year and year-day-month, until one
// gives a valid day. Only the locale's own names of months count, A to Z in any case; a named month keeps its place.
// Two items are a day of the current year, else a month of a year. A bare number is no date. Two-digit years run from
// 1930 to 2029. The time stands before or behind the date, or alone.
//
//   en-US: "11/28/2031"  "28/11/2031"  "28 Nov"  "Nov 2031" (the 1st)  "8:15 PM"  "Friday, 28-Nov-31 20:15"
//   de-DE: "28.11.2031 20:15:42"  "1. März 2031"
//   fi-FI: "28.11.2031 20.15.42"  "8.05" (a time)  "8.5" (the 8th of May)
//   none:  "45000"  "Nov"  "29.2.2031"  "20:15 Uhr"
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/os/Clock.h"
#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

// Gives the year of a text without one; asked only then.
using YearClock = std::int32_t (*)();

// False, leaving `pDate` as it was, when the text is no date.
bool ReadDate(std::u16string_view pText, Date& pDate, const LocaleRules& pRules = ThreadLocale(),
              YearClock pClock = os::CurrentYear);

}  // namespace qzbase::runtime
