// The short way from a number to its text: for patterns that consist of places and at most one point, as nearly all do,
// and for numbers of up to 13 digits.
//
//   0    0.00    #0.0##    000    #.#
//
// What it prints is what NumberSection.h prints for the same number and pattern; what it does not print goes the long
// way.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

// Appends the text of the number. False, and nothing appended, where there is more in the pattern than places and a
// point, where the number has too many digits, or where how it is rounded is seen in its decimal text only.
bool AppendByPlaces(std::u16string& pText, double pValue, std::u16string_view pPattern, const LocaleRules& pRules);

// Appends the text of `pWhole` x 10^-`pDecimals` with as many decimals, "-" before it if negative. `pWhole` is a whole
// number from 0 up. False, and nothing appended, where there are too many digits.
bool AppendDecimal(std::u16string& pText, double pWhole, std::int32_t pDecimals, bool pNegative,
                   const LocaleRules& pRules);

}  // namespace qzbase::runtime
