// Range strings: short texts that say which values a parameter allows.
//
//   "" or "*"                any value
//   ">=0" "<=10" "<>0" ">5" "<5"
//   "[0;100]"                an interval
//   "{Low;Medium;High}"      an enumeration of texts; its items are the subject of EnumRange.h, included here
//   "{[0;1];[5;6];10}"       a list of intervals and numbers
//   "{1;2;5;*}"              a combo list: the values are proposals, any entry is allowed
//
// Numbers in them have "." as decimal point whatever the locale, and are read up to the first character that cannot
// continue a number. Nothing here raises for a malformed range: the tests say false, "" or the number of the registered
// error. A number too large for a double is malformed too.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/text/EnumRange.h"  // IWYU pragma: export

namespace qzbase::ModString {

// 0 for a well-formed range, else the number of the registered error InvRangeString, which is not raised. Blanks around
// the range do not count.
//
//   "5" "=5" ">=x"           invalid
//   "[5;5]" "[5;1]"          invalid: the upper bound is greater. A third number in the brackets does not matter
//   "{a;;b}" "{}"            invalid: an item is empty; but one last ";" does no harm
//   "{[0;1];x}"              invalid: beside intervals there are numbers only
//   "{a;b"                   valid on purpose: without the closing brace nothing is looked at
std::int32_t CheckRangeStringValid(std::u16string_view Range);

// The range in words of the user's language, for messages and tooltips: "allowed range 0 To 1 Or 5 To 6". Nothing for
// the empty range.
std::u16string HumanReadable(std::u16string_view Range);

// Whether a number lies in the interval `Range`, bounds included, and, unless the step is empty or 0, on the grid of
// steps from the lower bound, as far as a number's text shows (15 digits). An empty range allows everything; a range
// that is no interval is read as one number, which the value must equal (so ">=5", "{1;2}" and "*" too are 0). Raises
// error 6 where the division by the step overflows.
bool IsInRange(double Value, std::u16string_view Range, std::u16string_view Step);

}  // namespace qzbase::ModString
