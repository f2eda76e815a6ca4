// Enumerations: range strings that list the values allowed, and the items of such lists.
//
//   "{Low;Medium;High}"     a list
//   "{1;2;5;*}"             a combo list: the values are proposals, any entry is allowed
//   "{[0;1];[5;6];10}"      a list of intervals and numbers; see RangeString.h
//
// Items count from 1 and are never trimmed. An empty item counts ("{a;}" has two), but "{}" has none. There is no way
// to put ";" into an item. Readers do without either brace; `IsMember`, `IsList` and `IsCombo` ask for both.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/Array.h"

namespace qzbase::ModString {

// The items of an enumeration, from 1; the result is their number. Without items `Item` is left as it is.
std::int32_t ParseEnumRange(std::u16string_view Range, runtime::Array<std::u16string>& Item);

// The position from 1 of the first item that equals `Item` exactly, -1 if there is none.
std::int32_t EnumOrd(std::u16string_view Item, std::u16string_view Range);

// The item at a position from 1, "" outside.
std::u16string EnumVal(std::int32_t ItemNr, std::u16string_view Range);

}  // namespace qzbase::ModString
