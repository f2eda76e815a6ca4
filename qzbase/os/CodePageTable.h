// The upper half of the system's 8-bit code page; the lower half is ASCII everywhere.
#pragma once

#include <array>

namespace qzbase::os {

// The 16-bit characters of the bytes 0x80 to 0xFF, read once. U+FFFD for a byte that is no character of its own (a lead
// byte of a two-byte code page).
using CodePageTable = std::array<char16_t, 128>;
const CodePageTable& UpperHalf();

}  // namespace qzbase::os
