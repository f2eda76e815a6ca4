// The two delimiters that all conversions between numbers and texts for users go by: what stands second where the
// locale prints "0.0" and "0,000", so each is one character. A locale without one of them has an empty one.
//
// They are the rules' own and not kept beside them: a thread whose locale changes has other delimiters at once.
#pragma once

#include <string>
#include <string_view>

#include "qzbase/runtime/Locale.h"
#include "qzbase/text/ShortText.h"

namespace qzbase::ModConvert {

inline std::u16string_view WindowsDecimalDelim(const runtime::LocaleRules& pRules = runtime::ThreadLocale()) {
  return std::u16string_view(pRules.decimal).substr(0, 1);
}

inline std::u16string_view WindowsThousandDelim(const runtime::LocaleRules& pRules = runtime::ThreadLocale()) {
  return std::u16string_view(pRules.thousands).substr(0, 1);
}

// A number text as the locale writes it: a localised one is that already, in others "." is the decimal delimiter. The
// result is a view of the text itself or, where something was to be replaced, of `pRoom`.
std::u16string_view LocalizedNumber(std::u16string_view pText, bool pLocalized, ShortText& pRoom,
                                    const runtime::LocaleRules& pRules);

// The other way: takes the delimiter out of a number text that the locale has written.
void DelocalizeNumber(std::u16string& pText, const runtime::LocaleRules& pRules);

}  // namespace qzbase::ModConvert
