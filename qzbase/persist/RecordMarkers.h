// The bytes that give a buffer its structure: the header's magic and the marker in front of each record.
//
// Do not change a number or use one again: they are in people's files.
#pragma once

#include <array>
#include <cstdint>

namespace qzbase {

enum class RecordMarker : std::uint8_t {
  None = 0,  // what stands behind the end of the data
  Tag = 1,
  Data = 2,
  String = 3,
  Double = 4,
  Long = 5,
  Boolean = 6,
  Date = 7,
  Byte = 8,
  Color = 9,
};

// The first bytes of a buffer with a header; the flag byte follows them.
inline constexpr std::array<std::uint8_t, 5> kHeaderMagic = {0x03, 0x26, 0xA6, 0x15, 0xAB};
inline constexpr std::uint8_t kTypedFlag = 1;  // written by this library; any value above 0 means typed
inline constexpr std::int32_t kHeaderSize = 6;

}  // namespace qzbase
