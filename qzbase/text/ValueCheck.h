// Checks texts that users have typed before they become values, and raises the registered error that says what is wrong
// with them:
//
//   InValue      "~", no value, where a value is needed
//   InvFormat    no number, no date, or a number with thousands delimiters
//   InvRange     a value that is not allowed; additional information is the text, a blank and the range
//   EmptyText    an empty text that is not allowed
//
//   CheckValue(u"5", EVTDouble, u"[0;1]", u"")               InvRange, "5 [0;1]"
//   CheckValue(u"auto", EVTDouble, u"[0;1] 'auto'", u"")     returns: a value that the range names in quotes
//   CheckValue(u"medium", EVTString, u"{Low;Medium}", u"")   returns
//
// Numbers have the locale's delimiters, of money too; in texts that are not localised "." is the decimal one.
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/core/QZVarType.h"
#include "qzbase/runtime/Locale.h"

namespace qzbase::ModConvert {

void CheckDouble(std::u16string_view pValue, bool pAllowInvalid = true, bool pLocalized = true,
                 const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// From -2147483647 to 2147483647 before rounding and without delimiters: the lowest 32-bit number is not taken.
void CheckLong(std::u16string_view pValue, bool pAllowInvalid = true,
               const runtime::LocaleRules& pRules = runtime::ThreadLocale());

void CheckDate(std::u16string_view pValue, bool pAllowInvalid = true,
               const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// Doubles, longs and dates by the functions above. Then
//
//   EVTBoolean   a part of the format's list, ignoring case
//   EVTDouble    a number in the range and on its steps (RangeString.h)
//   EVTLong      the same, but only where there is no format
//   EVTString    anything where the range is empty or a combo list that begins or ends with "*"; a text that is not
//                empty where the range is "*" or holds it, ignoring case
//   EVTEnum      an item of the format's list
//
// and anything for other types. Raises error 6 where testing the range overflows.
void CheckValue(std::u16string_view pValue, QZVarType pVarType, std::u16string_view pRange, std::u16string_view pStep,
                std::u16string_view pFormat = {}, bool pLocalized = true, bool pAllowInvalid = true,
                const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// The number of InvOutFormat where a number format holds a comma, else 0; raises nothing.
std::int32_t CheckNrOutFormat(std::u16string_view pFormat);

// Whether a range is the list of two words, and whether it is any list.
bool IsBooleanRange(std::u16string_view pRange);
bool IsEnumRange(std::u16string_view pRange);

}  // namespace qzbase::ModConvert
