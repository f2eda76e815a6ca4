// Numbers through patterns ("0.00", "#,##0;(#,##0)", "0.0E+00") and named formats ("Fixed", "Percent", "Yes/No").
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

// A number pattern has up to four sections, divided by ";": positive, negative, zero, null. Rounds half away from zero
// on the 15-digit decimal text. Raises error 5 for a pattern that is none.
std::u16string FormatNumber(double pValue, std::u16string_view pPattern, const LocaleRules& pRules = ThreadLocale());

// -2: the locale's own setting.
struct NumberStyle {
  enum class Kind : std::uint8_t { Number, Percent, Currency } kind = Kind::Number;
  std::int32_t digits = -1;       // decimals; -1: the locale's
  std::int32_t leadingZero = -2;  // -1 yes, 0 no
  std::int32_t parentheses = -2;  // -1 negative numbers in parentheses, 0 not
  std::int32_t grouping = -2;     // -1 yes, 0 no
};

std::u16string FormatNumber(double pValue, const NumberStyle& pStyle, const LocaleRules& pRules = ThreadLocale());

}  // namespace qzbase::runtime
