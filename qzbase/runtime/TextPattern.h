// Texts through patterns: "@@@-@@" spreads the characters over places.
//
//   @  a character, a blank where the text has none     &  a character, nothing where the text has none
//   <  the whole text in small letters                  >  in capitals
//   !  the text begins at the first place; without it, it ends at the last one
//
//   "abc" through "@@@@@"   "  abc"        "abc" through "!@@@@@"   "abc  "
//   "abc" through "(@) &&&" "(a) bc"       characters that find no place follow at the end
//
// A second section is for the empty text.
#pragma once

#include <string>
#include <string_view>

namespace qzbase::runtime {

// Raises error 5 when the pattern has more than four sections.
std::u16string FormatText(std::u16string_view pText, std::u16string_view pPattern);

}  // namespace qzbase::runtime
