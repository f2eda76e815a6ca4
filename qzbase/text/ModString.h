// Cutting and replacing by exact comparison: the list splitter, the token taker, replace-all and the trimmer.
//
//   SplitList(u"a;;b", u";", items)            3, items 1..3 are "a", "", "b"
//   TakeToken(source, u";")                    "x", and "x;y;z" becomes "y;z"
//   ReplaceAll(u"aaa", u"a", u"aa")            "aaaaaa": inserted text is not searched again
//
// All take time in proportion to the text's length and raise nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/Array.h"

namespace qzbase::ModString {

// Splits `pSource` at `pDelim` into `pItems`, with bounds 1 to the count, and returns the count. An empty source gives
// 0 and leaves `pItems` as it was.
//
// Only the first character of a found delimiter is dropped, and the next search begins behind it. So the rest of a
// longer delimiter stays at the front of the next item ("a::b" at "::" gives "a" and ":b"), and overlapping occurrences
// count each ("a:::b" gives "a", "" and ":b"). An empty delimiter is found at every character: as many empty items as
// there are characters, and one more.
std::int32_t SplitList(std::u16string_view pSource, std::u16string_view pDelim, runtime::Array<std::u16string>& pItems);

// Removes the first token and the delimiter behind it from `pSource` and returns the token. Without a delimiter (an
// empty one is never found) the token is everything and nothing is left.
std::u16string TakeToken(std::u16string& pSource, std::u16string_view pDelim);

// The same on a view, for walking through a long text without copying what is left.
std::u16string_view TakeToken(std::u16string_view& pSource, std::u16string_view pDelim);

// The text without the blanks at both ends: plain blanks only.
std::u16string_view TrimBlanks(std::u16string_view pText);

// Replaces every occurrence, from left to right. An empty `pOld` occurs nowhere.
std::u16string ReplaceAll(std::u16string_view pSource, std::u16string_view pOld, std::u16string_view pNew);

}  // namespace qzbase::ModString
