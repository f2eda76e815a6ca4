// Range strings: short texts that say which values a parameter allows.
//
//   "" or "*"                any value
//   ">=0" "<=10" "<>0" ">5" "<5"
//   "[0;100]"                an interval
//   "{Low;Medium;High}"      an enumeration of texts
//   "{[0;1];[5;6];10}"       a list of intervals and numbers
//   "{1;2;5;*}"              a combo list: the values are proposals, any entry is allowed
//
// Numbers in them have "." as decimal point whatever the locale, and are read up to the first character that cannot
// continue a number. Nothing here raises for a malformed range: the tests say false, "" or the number of the registered
// error.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/Array.h"

namespace qzbase::ModString {

// The items of an enumeration, from 1; the result is their number. Braces may be missing. Without items `Item` is left
// as it is.
std::int32_t ParseEnumRange(std::u16string_view Range, runtime::Array<std::u16string>& Item);

// The position from 1 of the first item that equals `Item` exactly, -1 if there is none.
std::int32_t EnumOrd(std::u16string_view Item, std::u16string_view Range);

// The item at a position from 1, "" outside.
std::u16string EnumVal(std::int32_t ItemNr, std::u16string_view Range);

// Whether a number lies in the interval `Range`, bounds included, and, unless the step is empty or 0, on the grid of
// steps from the lower bound. An empty range allows everything; a range that is no interval is read as one number,
// which the value must equal. Raises error 6 where the division by the step overflows.
bool IsInRange(double Value, std::u16string_view Range, std::u16string_view Step);

}  // namespace qzbase::ModString
