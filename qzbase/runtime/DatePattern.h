// Dates through patterns ("dd.mm.yyyy hh:nn:ss") and named formats ("Long Date", "Short Time").
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

// What "w" and "ww" count from. 0: the locale's own setting.
struct WeekRule {
  std::int32_t firstDay = 1;   // 1 Sunday to 7 Saturday
  std::int32_t firstWeek = 1;  // 1 the week of January 1st, 2 the first of four days, 3 the first full week
};

// Raises error 5 outside the calendar's years and for a pattern that is none.
std::u16string FormatDate(Date pDate, std::u16string_view pPattern, const LocaleRules& pRules = ThreadLocale(),
                          WeekRule pWeek = {});

}  // namespace qzbase::runtime
