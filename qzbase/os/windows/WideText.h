// Text as the system's functions take it: zero-terminated, in its own character type.
#pragma once

#include <string>
#include <string_view>

namespace qzbase::os {

inline std::wstring Wide(std::u16string_view pText) {
  return {pText.begin(), pText.end()};
}

}  // namespace qzbase::os
