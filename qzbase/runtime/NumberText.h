// The default text of numbers and the plain reader that goes with it.
//
//   0.1           "0.1"                     15 significant digits, trailing zeros cut
//   1.0 / 3       "0.333333333333333"       below one: fixed form while at most 15 decimals are needed,
//   1.0 / 30      "3.33333333333333E-02"    else exponent form
//   1e15          "1E+15"                   exponent form from here on
//   -0.0          "0"
//
// The decimal delimiter is the locale's in both forms. Infinities and not-a-number have the platform's texts ("1.#INF",
// "-1.#INF", "-1.#IND").
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

std::u16string NumberText(double pValue, const LocaleRules& pRules = ThreadLocale());
std::u16string NumberText(float pValue, const LocaleRules& pRules = ThreadLocale());  // 7 significant digits
std::u16string NumberText(std::int32_t pValue);

// Appends instead of making a text of its own.
void AppendNumberText(std::u16string& pText, double pValue, const LocaleRules& pRules = ThreadLocale());
void AppendNumberText(std::u16string& pText, std::int32_t pValue);

// The number at the beginning of a text, whatever the locale: blanks (and tabs and line feeds) are skipped wherever
// they stand, "." is the only decimal point, "E" and "D" begin an exponent, and the first character that cannot
// continue the number ends it. A text that begins with no number gives 0. Raises error 6 when the number is too large
// for a double.
double LeadingNumber(std::u16string_view pText);

}  // namespace qzbase::runtime
