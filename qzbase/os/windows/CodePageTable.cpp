#include "qzbase/os/CodePageTable.h"

#include <cstddef>

#include <windows.h>

namespace qzbase::os {

const CodePageTable& UpperHalf() {
  static const CodePageTable table = [] {
    CodePageTable result{};
    for (std::size_t i = 0; i < result.size(); ++i) {
      const char byte = static_cast<char>(0x80 + i);
      wchar_t wide[2] = {};
      const bool single = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, &byte, 1, wide, 2) == 1;
      result[i] = single ? static_cast<char16_t>(wide[0]) : u'\uFFFD';
    }
    return result;
  }();
  return table;
}

}  // namespace qzbase::os
