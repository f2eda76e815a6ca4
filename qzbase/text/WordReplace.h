// Replacing in expressions, by text comparison: names that stand as whole words, and decimal delimiters.
//
// Both search on from the character behind the *start* of a replacement, so inserted text is searched too, except its
// first character. An occurrence there is left where replacing it would never come to an end ("x" by "y+x").
#pragma once

#include <string>
#include <string_view>

namespace qzbase {

// Replaces `pOld` where it stands as a whole word and is neither a member (behind ".") nor called (before "(").
//
//   "x+max(x)*b.x", x by y        "y+max(y)*b.x"
//   "xy", x by z                  "zy": the last character is never looked at as a follower
//   "x", x by X                   "x": nothing is done when old and new are equal as texts
//
// A character belongs to a word when it sorts from "A" to "z" in the locale; digits do not.
std::u16string ReplaceWord(std::u16string_view pString, std::u16string_view pOld, std::u16string_view pNew);

// Replaces a delimiter (meant to be one character: only one is taken out) that stands between two digits 0 to 9.
//
//   "1,5;2,25", "," by "."        "1.5;2.25"
//   "1, 2"                        as it is
std::u16string ReplaceNumberDelimiter(std::u16string_view pSource, std::u16string_view pOld, std::u16string_view pNew);

}  // namespace qzbase
