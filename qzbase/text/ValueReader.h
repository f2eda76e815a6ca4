// Texts that users have typed, as values. Nothing here raises for a bad text: the result is the invalid value of the
// type then. Callers check the text first (ValueCheck.h).
//
//   StringToValue(u"1.5", EVTDouble)                        1.5, also where the locale has a comma if not localised
//   StringToValue(u"Low", EVTEnum, u"{Off;Low;High}")       2
//   StringToValue(u"yes", EVTBoolean, u"{Yes;No}")          true
//   StringToValue(u"28.11.31", EVTDate, u"DD.MM.YY")        28 November 2031
//
// Numbers are read as users of the locale write them (runtime/NumberReader.h); "." is the decimal delimiter of texts
// that are not localised.
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/core/QZVarType.h"
#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::ModConvert {

// The format of booleans that have none.
inline constexpr std::u16string_view kDefaultBooleans = u"{True;False}";

double StringToDouble(std::u16string_view pValue, bool pLocalized = true,
                      const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// Rounds halves to even.
std::int32_t StringToLong(std::u16string_view pValue, const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// Whether the text is the first word of "{true word;false word}", ignoring case.
bool StringToBool(std::u16string_view pValue, std::u16string_view pFormat = {},
                  const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// The position from 1 of the item that equals the text exactly, -1 if there is none.
std::int32_t StringToEnum(std::u16string_view pValue, std::u16string_view pFormat = {});

// By the places in the format (DateByFormat.h); without a format whatever users of the locale write.
runtime::Date StringToDate(std::u16string_view pValue, std::u16string_view pFormat = {},
                           const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// By the type, as the functions above, longs and enumerations as 32-bit integers. Empty for colours, objects, invalid
// and unknown types.
runtime::Variant StringToValue(std::u16string_view pValue, QZVarType pVarType, std::u16string_view pFormat = {},
                               bool pLocalized = true, const runtime::LocaleRules& pRules = runtime::ThreadLocale());

}  // namespace qzbase::ModConvert
