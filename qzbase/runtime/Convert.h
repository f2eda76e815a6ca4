// Conversions between the kinds of a variant.
//
//              from: empty  null  number        date       text                  boolean  object, array
//   to number        0      94    range checked as number  recogniser, 13 or 6   -1, 0    13
//   to date          0      94    range checked as it is   date recogniser       -1, 0    13
//   to text          ""     94    default text  default    as it is              True     13
//   to boolean       false  94    not zero      not zero   words, else number    as it is 13
//
// 13: type mismatch, 6: overflow, 94: invalid use of null; an unset object raises 91. Rounding to integers is half to
// even.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/Locale.h"
#include "qzbase/runtime/NumberReader.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::runtime {

double ToDouble(const Variant& pValue, const LocaleRules& pRules = ThreadLocale());
float ToSingle(const Variant& pValue, const LocaleRules& pRules = ThreadLocale());
std::int32_t ToLong(const Variant& pValue, const LocaleRules& pRules = ThreadLocale());
std::int16_t ToInteger(const Variant& pValue, const LocaleRules& pRules = ThreadLocale());
std::uint8_t ToByte(const Variant& pValue, const LocaleRules& pRules = ThreadLocale());
bool ToBoolean(const Variant& pValue, const LocaleRules& pRules = ThreadLocale());
Date ToDate(const Variant& pValue, const LocaleRules& pRules = ThreadLocale());
std::u16string ToText(const Variant& pValue, const LocaleRules& pRules = ThreadLocale());

// The same for texts, without a variant round them.
double TextToDouble(std::u16string_view pText, const LocaleRules& pRules = ThreadLocale());
std::int32_t TextToLong(std::u16string_view pText, const LocaleRules& pRules = ThreadLocale());
bool TextToBoolean(std::u16string_view pText, const LocaleRules& pRules = ThreadLocale());
Date TextToDate(std::u16string_view pText, const LocaleRules& pRules = ThreadLocale());

// Without an error: on success `pValue` holds the boolean, otherwise it is left as it was.
ReadResult ReadBoolean(std::u16string_view pText, bool& pValue, const LocaleRules& pRules = ThreadLocale());

// "True" or "False" in every locale.
std::u16string_view BooleanText(bool pValue) noexcept;

// Half to even; raise error 6 outside the range (not-a-number included).
std::int32_t RoundToLong(double pValue);
std::int16_t RoundToInteger(double pValue);

// The object in a variant: error 13 where there is none, 91 where it is unset.
Ref<Object> ToObject(const Variant& pValue);

// A variant of another kind, by the grid above. To empty, null, object or array converts only a value that is that
// already.
Variant ConvertTo(const Variant& pValue, VariantKind pKind, const LocaleRules& pRules = ThreadLocale());

}  // namespace qzbase::runtime
