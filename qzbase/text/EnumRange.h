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

// "{" + the items, with `FirstItem` before them unless it is empty + "}". Any lower bound will do; an unallocated array
// has no items.
std::u16string MakeEnumRange(const runtime::Array<std::u16string>& Item, std::u16string_view FirstItem = {});

// The same step by step; between the two calls the caller appends every item and a ";".
void InitEnumRange(std::u16string& pRange);
void FinalizeEnumRange(std::u16string& pRange);

// The items of an enumeration, from 1; the result is their number. Without items `Item` is left as it is.
std::int32_t ParseEnumRange(std::u16string_view Range, runtime::Array<std::u16string>& Item);

// The position from 1 of the first item that equals `Item` exactly, -1 if there is none.
std::int32_t EnumOrd(std::u16string_view Item, std::u16string_view Range);

// The item at a position from 1, "" outside.
std::u16string EnumVal(std::int32_t ItemNr, std::u16string_view Range);

// Lists of numbers. They are written with the locale's decimal delimiter but read with "." whatever the locale, as
// programs have come to rely on: where the delimiter is a comma, 1.5 is written as "1,5" and read back as 1.
//
// An unallocated array is a list without items. `ParseValueList` gives `Value` bounds from 1 to the number
// of items, which is the result; an item that begins with no number is 0, and without items `Value` is one 0. A number
// too large for a double raises error 6.
std::u16string MakeValueList(const runtime::Array<double>& Value);
std::int32_t ParseValueList(std::u16string_view List, runtime::Array<double>& Value);

// Whether the range stands between braces, whatever is in it.
bool HasBraces(std::u16string_view Range);

// Whether the value is an item, by text comparison. A value with ";" in it may be several items in a row.
bool IsMember(std::u16string_view Value, std::u16string_view Range);

// Whether the range is a list or a combo list of single values: braces, no "[", and no "*" or one.
bool IsList(std::u16string_view Range);
bool IsCombo(std::u16string_view Range);

}  // namespace qzbase::ModString
