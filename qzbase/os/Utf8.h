// UTF-8 outside, 16-bit characters inside: for file names, diagnostic output and tests.
#pragma once

#include <string>
#include <string_view>

namespace qzbase::os {

// The first and the second half of a character beyond U+FFFF.
constexpr bool IsHighSurrogate(char16_t pUnit) {
  return (pUnit & 0xFC00) == 0xD800;
}
constexpr bool IsLowSurrogate(char16_t pUnit) {
  return (pUnit & 0xFC00) == 0xDC00;
}

// What is not well-formed becomes U+FFFD, in both directions.
std::string ToUtf8(std::u16string_view pText);
std::u16string FromUtf8(std::string_view pBytes);

// The same, with another character for each byte that belongs to no well-formed sequence.
std::u16string FromUtf8(std::string_view pBytes, char16_t (*pIllFormed)(unsigned char pByte));

}  // namespace qzbase::os
