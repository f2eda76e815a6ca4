// The test that numbers in range strings pass, and that users' code asks before it converts a text.
#pragma once

#include <string_view>

namespace qzbase::ModConvert {

// Whether the text consists of "0" to "9", ".", "-" and "E" (either case) alone and is, as a whole, a number with "."
// as its decimal point, whatever the user's locale. "1.5", "-2" and "1E-3" are; "", "+1", "1,5", "1.5.2", " 1" and "E"
// are not.
bool IsPlainNumber(std::u16string_view pText);

}  // namespace qzbase::ModConvert
