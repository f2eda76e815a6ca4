// Bytes as tests write and show them: "05 07 00 00 00".
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "qzbase/runtime/Array.h"

namespace qzbase::tests {

using Bytes = std::vector<std::uint8_t>;

inline Bytes FromHex(std::string_view pHex) {
  Bytes bytes;
  for (std::size_t i = 0; i + 1 < pHex.size(); i += 3)
    bytes.push_back(static_cast<std::uint8_t>(std::strtoul(std::string(pHex.substr(i, 2)).c_str(), nullptr, 16)));
  return bytes;
}

inline std::string ToHex(const Bytes& pBytes) {
  std::string hex;
  for (const std::uint8_t byte : pBytes) {
    char digits[4];
    std::snprintf(digits, sizeof digits, "%02X ", byte);
    hex += digits;
  }
  if (!hex.empty()) hex.pop_back();
  return hex;
}

// A byte array as `LetByteArray` wants it: the data and one byte behind them.
runtime::Array<std::uint8_t> Storage(const auto& pData) {
  Bytes bytes(pData.begin(), pData.end());
  bytes.push_back(0);
  return {0, std::move(bytes)};
}

}  // namespace qzbase::tests
