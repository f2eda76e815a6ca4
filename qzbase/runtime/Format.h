// A value through a pattern: the one entry that looks at the pattern to see whether it is one of numbers or of dates.
#pragma once

#include <string>
#include <string_view>

#include "qzbase/runtime/DatePattern.h"
#include "qzbase/runtime/NumberPattern.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::runtime {

// An empty pattern gives the default text. Numbers go through date patterns as day counts and dates through number
// patterns as numbers; texts that are numbers or dates are formatted as such, other texts come back as they are. Null
// gives the fourth section of a number pattern, else the empty text. Unquoted date letters make a date pattern.
std::u16string Format(const Variant& pValue, std::u16string_view pPattern, const LocaleRules& pRules = ThreadLocale(),
                      WeekRule pWeek = {});

}  // namespace qzbase::runtime
