// The words of dates: names of months and weekdays, marks for the half of the day. Letters A to Z ignore case, others
// are exact.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

enum class HalfDay : std::uint8_t { None, Am, Pm };

struct DateWord {
  enum class Kind : std::uint8_t { None, Month, WeekDay, HalfDay } kind = Kind::None;
  std::int32_t value = 0;  // of a month 1 to 12, else a `HalfDay`
  std::size_t length = 0;
};

// The longest word of a kind at the start of a text. Months have their long and short names, alone and beside a day;
// the English marks for the half of the day are understood everywhere.
DateWord FindMonth(std::u16string_view pText, const LocaleRules& pRules);
DateWord FindWeekDay(std::u16string_view pText, const LocaleRules& pRules);
DateWord FindHalfDay(std::u16string_view pText, const LocaleRules& pRules);

// The longest of all kinds; of equal ones a month goes before a weekday.
DateWord FindDateWord(std::u16string_view pText, const LocaleRules& pRules);

}  // namespace qzbase::runtime
