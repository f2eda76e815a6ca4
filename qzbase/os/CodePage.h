// 8-bit text in the system's code page (Windows: the system's own; elsewhere Windows-1252).
#pragma once

#include <string>
#include <string_view>

namespace qzbase::os {

// One byte for each character of the code page; "?" for a 16-bit character that the code page lacks. The result has
// exactly as many bytes as `pText` has 16-bit characters, whatever they are.
std::string ToCodePage(std::u16string_view pText);

// The inverse: one 16-bit character for each byte.
std::u16string FromCodePage(std::string_view pBytes);

}  // namespace qzbase::os
