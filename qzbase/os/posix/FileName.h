// Names of files as text and in the bytes of the system, where a name is any bytes without "/" and zero.
//
// Bytes that are UTF-8 are that text. Every byte that belongs to no UTF-8 sequence is the unpaired low surrogate
// U+DC00 + byte (U+DC80 to U+DCFF), which no text has, and so is a "\" (U+DC5C), since that parts folders here:
//
//   "r\xE9sum\xE9"   u"r\xDCE9sum\xDCE9"        "a\\b"   u"a\xDC5C" u"b"
//
// So every name comes back from its text byte by byte, alone and as part of a longer name.
#pragma once

#include <string>
#include <string_view>

namespace qzbase::os {

// The text of one name, without a folder.
std::u16string TextOfName(std::string_view pName);

// The name as the system wants it, as far as the system would read it: "/" for "\", without a drive, and without
// separators at its end, unless it is the root.
std::string NativeName(std::u16string_view pName);

// Whether the name, as far as the system would read it, says by its end that it is a folder's.
bool EndsWithSeparator(std::u16string_view pName);

}  // namespace qzbase::os
