// A globally unique identifier, in the parts of its registry form {01234567-89AB-CDEF-0123-456789ABCDEF}.
#pragma once

#include <array>
#include <cstdint>

namespace qzbase {

struct TGuid {
  std::int32_t Data1 = 0;
  std::int16_t Data2 = 0;
  std::int16_t Data3 = 0;
  std::array<std::uint8_t, 8> Data4{};
  bool operator==(const TGuid&) const = default;
};

}  // namespace qzbase
