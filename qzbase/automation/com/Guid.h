// GUIDs from their text in the tables, at compile time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "qzbase/automation/com/Platform.h"

namespace qzbase::automation::com {

namespace detail {

constexpr std::uint32_t HexDigit(char pDigit) {
  if (pDigit >= '0' && pDigit <= '9') return static_cast<std::uint32_t>(pDigit - '0');
  if (pDigit >= 'a' && pDigit <= 'f') return static_cast<std::uint32_t>(pDigit - 'a' + 10);
  if (pDigit >= 'A' && pDigit <= 'F') return static_cast<std::uint32_t>(pDigit - 'A' + 10);
  throw "not a hexadecimal digit";
}

constexpr std::uint32_t HexNumber(std::string_view pDigits) {
  std::uint32_t number = 0;
  for (const char digit : pDigits) number = number * 16 + HexDigit(digit);
  return number;
}

}  // namespace detail

// "01234567-89AB-CDEF-0123-456789ABCDEF"
constexpr GUID ParseGuid(std::string_view pText) {
  if (pText.size() != 36 || pText[8] != '-' || pText[13] != '-' || pText[18] != '-' || pText[23] != '-')
    throw "not a GUID";
  GUID guid{};
  guid.Data1 = detail::HexNumber(pText.substr(0, 8));
  guid.Data2 = static_cast<unsigned short>(detail::HexNumber(pText.substr(9, 4)));
  guid.Data3 = static_cast<unsigned short>(detail::HexNumber(pText.substr(14, 4)));
  for (std::size_t i = 0; i < 8; ++i)
    guid.Data4[i] = static_cast<unsigned char>(detail::HexNumber(pText.substr((i < 2 ? 19 : 20) + 2 * i, 2)));
  return guid;
}

}  // namespace qzbase::automation::com
