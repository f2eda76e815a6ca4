#include "qzbase/persist/Crc.h"

#include <array>
#include <cstddef>

#include "qzbase/persist/BufferPrimitives.h"

namespace qzbase {
namespace {

constexpr std::uint32_t kPolynomial = 0xEDB88320;
constexpr std::size_t kSlices = 16;

using SliceTables = std::array<std::array<std::uint32_t, 256>, kSlices>;

// Table 0 moves the register past one byte; table n past a byte and n zero bytes behind it. Since the register is
// linear in its input, sixteen bytes are taken at once by looking each one up in the table of its distance to the end.
constexpr SliceTables MakeTables() {
  SliceTables tables{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t value = byte;
    for (int bit = 0; bit < 8; ++bit) value = (value >> 1) ^ ((value & 1) != 0 ? kPolynomial : 0);
    tables[0][byte] = value;
  }
  for (std::size_t slice = 1; slice < kSlices; ++slice)
    for (std::size_t byte = 0; byte < 256; ++byte) {
      const std::uint32_t before = tables[slice - 1][byte];
      tables[slice][byte] = (before >> 8) ^ tables[0][before & 0xFF];
    }
  return tables;
}

constexpr SliceTables kTables = MakeTables();

// What eight bytes add to the register when `pBehind` bytes of their block follow them.
std::uint32_t LookUp(std::uint64_t pBytes, std::size_t pBehind) noexcept {
  std::uint32_t result = 0;
  for (std::size_t i = 0; i < 8; ++i) result ^= kTables[pBehind + 7 - i][(pBytes >> (8 * i)) & 0xFF];
  return result;
}

std::uint32_t TakeBlock(std::uint32_t pRegister, const std::uint8_t* pBytes) noexcept {
  std::uint64_t first = 0;
  std::uint64_t second = 0;
  detail::Load<std::uint64_t>(pBytes, detail::Load<std::uint64_t>(pBytes, 0, first), second);
  return LookUp(first ^ pRegister, 8) ^ LookUp(second, 0);
}

}  // namespace

std::int32_t CRC(std::span<const std::uint8_t> pData, std::int32_t pStart) noexcept {
  auto value = static_cast<std::uint32_t>(pStart);
  for (; pData.size() >= kSlices; pData = pData.subspan(kSlices)) value = TakeBlock(value, pData.data());
  for (const std::uint8_t byte : pData) value = (value >> 8) ^ kTables[0][(value ^ byte) & 0xFF];
  return static_cast<std::int32_t>(value);
}

}  // namespace qzbase
