// Text comparison: the locale's order, ignoring case.
//
// Exact comparison is the operators of the string classes; what is called text comparison anywhere in this library is
// here.
#pragma once

#include <cstddef>
#include <string_view>

#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

// -1, 0 or 1.
int CompareText(std::u16string_view pLeft, std::u16string_view pRight, const LocaleRules& pRules = ThreadLocale());

inline bool EqualText(std::u16string_view pLeft, std::u16string_view pRight,
                      const LocaleRules& pRules = ThreadLocale()) {
  return CompareText(pLeft, pRight, pRules) == 0;
}

// The first place at or after `pStart` (counted from 0) where as many characters of `pText` as `pSought` has equal it
// in text comparison; `npos` if there is none. An empty `pSought` is found at once, up to the end of the text.
std::size_t FindText(std::u16string_view pText, std::u16string_view pSought, std::size_t pStart = 0,
                     const LocaleRules& pRules = ThreadLocale());

// Whether a single character sorts from "0" to "9".
inline bool IsDigitText(std::u16string_view pCharacter, const LocaleRules& pRules = ThreadLocale()) {
  return CompareText(pCharacter, u"0", pRules) >= 0 && CompareText(pCharacter, u"9", pRules) <= 0;
}

// Names of members, formats and literals: the letters A to Z ignore case, everything else is exact, in every locale.
bool EqualName(std::u16string_view pLeft, std::u16string_view pRight) noexcept;

}  // namespace qzbase::runtime
