// The default text of dates: "11/28/2031 8:15:42 PM", "11/28/2031" at midnight, "8:15:42 PM" on day 0.
#pragma once

#include <cstdint>
#include <string>

#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

enum class DateTextParts : std::uint8_t { Both, DateOnly, TimeOnly };

// The locale's short date and long time. `Both` leaves out the time at midnight and the date on day 0, where the time
// is shown even at midnight; the other two always show their part. Raises error 5 outside the calendar's years.
std::u16string DateText(Date pDate, const LocaleRules& pRules = ThreadLocale(),
                        DateTextParts pParts = DateTextParts::Both);

}  // namespace qzbase::runtime
