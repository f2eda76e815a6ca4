// Values as bytes and back: little-endian on every machine, at any index, aligned or not.
//
// Each routine takes the first byte of the storage and an index and returns the index behind what it copied. None of
// them checks that there is room: that is the buffer's business.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace qzbase {
namespace detail {

// The same value with the bytes in the order of the format; nothing to do where that is the machine's own order.
template <class Unsigned>
constexpr Unsigned LittleEndian(Unsigned pValue) noexcept {
  if constexpr (std::endian::native == std::endian::little) return pValue;
  Unsigned swapped = 0;
  for (std::size_t i = 0; i < sizeof pValue; ++i, pValue = static_cast<Unsigned>(pValue >> 8))
    swapped = static_cast<Unsigned>((swapped << 8) | (pValue & 0xFF));
  return swapped;
}

template <class Unsigned, class Value>
std::int32_t Store(std::uint8_t* pBase, std::int32_t pIndex, Value pValue) noexcept {
  const Unsigned bits = LittleEndian(std::bit_cast<Unsigned>(pValue));
  std::memcpy(pBase + pIndex, &bits, sizeof bits);
  return pIndex + static_cast<std::int32_t>(sizeof bits);
}

template <class Unsigned, class Value>
std::int32_t Load(const std::uint8_t* pBase, std::int32_t pIndex, Value& pValue) noexcept {
  Unsigned bits = 0;
  std::memcpy(&bits, pBase + pIndex, sizeof bits);
  pValue = std::bit_cast<Value>(LittleEndian(bits));
  return pIndex + static_cast<std::int32_t>(sizeof bits);
}

}  // namespace detail

inline std::int32_t AddByteToBuff(std::uint8_t* pBase, std::int32_t pIndex, std::uint8_t pValue) noexcept {
  return detail::Store<std::uint8_t>(pBase, pIndex, pValue);
}
inline std::int32_t AddLongToBuff(std::uint8_t* pBase, std::int32_t pIndex, std::int32_t pValue) noexcept {
  return detail::Store<std::uint32_t>(pBase, pIndex, pValue);
}
inline std::int32_t AddDoubleToBuff(std::uint8_t* pBase, std::int32_t pIndex, double pValue) noexcept {
  return detail::Store<std::uint64_t>(pBase, pIndex, pValue);
}
std::int32_t AddDataToBuff(std::uint8_t* pBase, std::int32_t pIndex, std::span<const std::uint8_t> pData) noexcept;
std::int32_t AddStringToBuff(std::uint8_t* pBase, std::int32_t pIndex, std::string_view pText) noexcept;
std::int32_t AddWideStringToBuff(std::uint8_t* pBase, std::int32_t pIndex, std::u16string_view pText) noexcept;

inline std::int32_t GetByteFromBuff(const std::uint8_t* pBase, std::int32_t pIndex, std::uint8_t& pValue) noexcept {
  return detail::Load<std::uint8_t>(pBase, pIndex, pValue);
}
inline std::int32_t GetLongFromBuff(const std::uint8_t* pBase, std::int32_t pIndex, std::int32_t& pValue) noexcept {
  return detail::Load<std::uint32_t>(pBase, pIndex, pValue);
}
inline std::int32_t GetDoubleFromBuff(const std::uint8_t* pBase, std::int32_t pIndex, double& pValue) noexcept {
  return detail::Load<std::uint64_t>(pBase, pIndex, pValue);
}
// The size of the destination says how much is copied.
std::int32_t GetDataFromBuff(const std::uint8_t* pBase, std::int32_t pIndex, std::span<std::uint8_t> pData) noexcept;
std::int32_t GetStringFromBuff(const std::uint8_t* pBase, std::int32_t pIndex, std::string& pText) noexcept;
std::int32_t GetWideStringFromBuff(const std::uint8_t* pBase, std::int32_t pIndex, std::u16string& pText) noexcept;

}  // namespace qzbase
