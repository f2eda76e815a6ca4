// New globally unique identifiers.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace qzbase::os {

struct Guid {
  std::uint32_t data1 = 0;
  std::uint16_t data2 = 0;
  std::uint16_t data3 = 0;
  std::array<std::uint8_t, 8> data4{};
};

// A random one (version 4), from the system's generator; nothing where that fails.
std::optional<Guid> NewGuid() noexcept;

}  // namespace qzbase::os
