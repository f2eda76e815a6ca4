// Values as dialogs, tables and dumps show them.
//
//   ValueToString(1234.5, EVTDouble, u"0.00")         "1234.50", where the locale has a comma "1234,50"
//   ValueToString(1234.5, EVTDouble, u"SF3")          "1230": three significant figures
//   ValueToString(2, EVTEnum, u"{Off;Low;High}")      "Low"
//   ValueToString(true, EVTBoolean, u"{Yes;No}")      "Yes"
//   ValueToString({}, EVTDouble, u"")                 "~": no value
//
// A format is the platform's pattern (runtime/Format.h), or what is said at a function; an empty one gives the
// platform's own text. Raises error 5 for a pattern that is none and for a date outside the calendar, and what
// conversions of variants raise (runtime/Convert.h).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/core/QZVarType.h"
#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::ModConvert {

// The first or the second word of "{true word;false word}", "true" or "false" where that is missing.
std::u16string BoolToString(bool pValue, std::u16string_view pFormat);

// Day 0 is no date: "~". A time without a format is a long one.
std::u16string DateToString(runtime::Date pValue, std::u16string_view pFormat = {},
                            const runtime::LocaleRules& pRules = runtime::ThreadLocale());
std::u16string TimeToString(runtime::Date pValue, std::u16string_view pFormat = {},
                            const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// The invalid long is a number like any other here.
std::u16string LongToString(std::int32_t pValue, std::u16string_view pFormat = {},
                            const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// The invalid double is "~". A format "SFn" means n significant figures. Not localised, the decimal delimiter is ".".
std::u16string DoubleToString(double pValue, std::u16string_view pFormat = {}, bool pLocalize = true,
                              const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// Rounds halves away from zero at the last figure and shows as many decimals as there are figures behind the point. The
// digits before the point are counted by the logarithm cut towards zero, so that a magnitude below 1 shows one figure
// fewer (0.0123 with 3 figures is "0.012") unless it is a power of ten (0.01 is "0.0100"). Raises error 6 where the
// numbers grow too large, 11 where they vanish.
std::u16string DoubleToStringSF(double pValue, std::int32_t pSigFigs,
                                const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// The plain number.
std::u16string ColorToString(std::int32_t pValue);

// The item at a position from 1 of "{first;second}", "" outside.
std::u16string EnumToString(std::int32_t pValue, std::u16string_view pFormat);

// By the type, as the functions above; "" for objects, invalid and unknown types. Empty is "~" whatever the type.
std::u16string ValueToString(const runtime::Variant& pValue, QZVarType pVarType, std::u16string_view pFormat,
                             bool pLocalize = true, const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// The locale's short time and date as patterns: "HH:NN", "DD.MM.YYYY".
std::u16string WindowsTimeFormat(const runtime::LocaleRules& pRules = runtime::ThreadLocale());
std::u16string WindowsDateFormat(const runtime::LocaleRules& pRules = runtime::ThreadLocale());

}  // namespace qzbase::ModConvert
