// Recognises numbers in texts as users of a locale write them: signs before or behind, parentheses, thousands
// delimiters, currency, exponents, hexadecimal and octal texts.
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

enum class ReadResult : std::uint8_t { Read, NotANumber, Overflow };

// On success `pValue` holds the number; otherwise it is left as it was.
ReadResult ReadNumber(std::u16string_view pText, double& pValue, const LocaleRules& pRules = ThreadLocale());

// Rounds halves to even, on the decimal digits of the text and not on a binary value.
ReadResult ReadNumber(std::u16string_view pText, std::int32_t& pValue, const LocaleRules& pRules = ThreadLocale());

}  // namespace qzbase::runtime
