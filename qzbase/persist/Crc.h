// The checksum of buffers: CRC-32 with the reflected polynomial EDB88320.
//
// The register starts with `pStart` and is returned as it is after the last byte, neither inverted before nor after, so
// that the checksum of two runs joined is that of the second begun with that of the first:
//
//   CRC(ab, 101192) == CRC(b, CRC(a, 101192))
//
// The usual CRC-32 of "123456789" is the complement: ~CRC("123456789", -1) == CBF43926.
#pragma once

#include <cstdint>
#include <span>

namespace qzbase {

std::int32_t CRC(std::span<const std::uint8_t> pData, std::int32_t pStart) noexcept;

}  // namespace qzbase
