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
// error. Only a number too large for a double raises error 6.
#pragma once

#include <string_view>

#include "qzbase/text/EnumRange.h"  // IWYU pragma: export

namespace qzbase::ModString {

// Whether a number lies in the interval `Range`, bounds included, and, unless the step is empty or 0, on the grid of
// steps from the lower bound, as far as a number's text shows (15 digits). An empty range allows everything; a range
// that is no interval is read as one number, which the value must equal (so ">=5" is 0). Raises error 6 where the
// division by the step overflows.
bool IsInRange(double Value, std::u16string_view Range, std::u16string_view Step);

}  // namespace qzbase::ModString
