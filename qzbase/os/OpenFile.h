// Writing into a file that somebody else has opened and will close.
#pragma once

#include <cstdint>
#include <string_view>

namespace qzbase::os {

// Appends a line in UTF-8 with the system's line end, at once and as a whole, where the file stands. `pNumber` is what
// the operating system calls the open file: a file descriptor, on Windows the value of a handle (handles have 32 bits
// that count). What cannot be written is lost; no failure is reported.
void WriteLine(std::int32_t pNumber, std::u16string_view pLine);

}  // namespace qzbase::os
