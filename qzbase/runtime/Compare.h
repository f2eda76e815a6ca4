// Equality and order of variants of any two kinds.
//
// Numbers, dates and booleans compare as numbers; texts by the locale's order; a text is greater than any number, date
// or boolean; empty equals 0, "" and false; null compared with anything gives no order.
#pragma once

#include <cstdint>

#include "qzbase/os/Collation.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::runtime {

using os::CaseRule;

enum class Order : std::uint8_t { Less, Equal, Greater, Unknown };

// Not-a-number gives no order, like null.
Order CompareNumbers(double pLeft, double pRight) noexcept;

// Both raise error 13 for objects and arrays.
Order Compare(const Variant& pLeft, const Variant& pRight, CaseRule pCase = CaseRule::CaseSensitive,
              const LocaleRules& pRules = ThreadLocale());

// The same with texts compared exactly, by the numbers of their characters: "B" < "a".
Order CompareExact(const Variant& pLeft, const Variant& pRight, const LocaleRules& pRules = ThreadLocale());

// Whether that is `Equal`: the one equality of all containers of variants.
bool EqualExact(const Variant& pLeft, const Variant& pRight, const LocaleRules& pRules = ThreadLocale());

}  // namespace qzbase::runtime
