// UTF-8 outside, 16-bit characters inside: for file names, diagnostic output and tests.
#pragma once

#include <string>
#include <string_view>

namespace qzbase::os {

// What is not well-formed becomes U+FFFD, in both directions.
std::string ToUtf8(std::u16string_view pText);
std::u16string FromUtf8(std::string_view pBytes);

}  // namespace qzbase::os
