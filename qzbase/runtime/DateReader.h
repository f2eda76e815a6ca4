// Recognises dates and times in texts as users of a locale write them.
//
// The locale's order of day, month and year is tried first, then every other order that gives a valid day; only the
// locale's own month names count. A bare number is no date. Two-digit years run from 1930 to 2029; a text without a
// year means the current one.
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
