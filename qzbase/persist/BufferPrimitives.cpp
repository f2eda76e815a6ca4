#include "qzbase/persist/BufferPrimitives.h"

namespace qzbase {
namespace {

// An empty run may have no address, which memcpy does not allow.
std::int32_t CopyIn(std::uint8_t* pBase, std::int32_t pIndex, const void* pSource, std::size_t pCount) noexcept {
  if (pCount > 0) std::memcpy(pBase + pIndex, pSource, pCount);
  return pIndex + static_cast<std::int32_t>(pCount);
}

std::int32_t CopyOut(const std::uint8_t* pBase, std::int32_t pIndex, void* pTarget, std::size_t pCount) noexcept {
  if (pCount > 0) std::memcpy(pTarget, pBase + pIndex, pCount);
  return pIndex + static_cast<std::int32_t>(pCount);
}

}  // namespace

std::int32_t AddDataToBuff(std::uint8_t* pBase, std::int32_t pIndex, std::span<const std::uint8_t> pData) noexcept {
  return CopyIn(pBase, pIndex, pData.data(), pData.size());
}

std::int32_t AddStringToBuff(std::uint8_t* pBase, std::int32_t pIndex, std::string_view pText) noexcept {
  return CopyIn(pBase, pIndex, pText.data(), pText.size());
}

std::int32_t AddWideStringToBuff(std::uint8_t* pBase, std::int32_t pIndex, std::u16string_view pText) noexcept {
  if constexpr (std::endian::native == std::endian::little)
    return CopyIn(pBase, pIndex, pText.data(), pText.size() * sizeof(char16_t));
  for (const char16_t unit : pText) pIndex = detail::Store<std::uint16_t>(pBase, pIndex, unit);
  return pIndex;
}

std::int32_t GetDataFromBuff(const std::uint8_t* pBase, std::int32_t pIndex, std::span<std::uint8_t> pData) noexcept {
  return CopyOut(pBase, pIndex, pData.data(), pData.size());
}

std::int32_t GetStringFromBuff(const std::uint8_t* pBase, std::int32_t pIndex, std::string& pText) noexcept {
  return CopyOut(pBase, pIndex, pText.data(), pText.size());
}

std::int32_t GetWideStringFromBuff(const std::uint8_t* pBase, std::int32_t pIndex, std::u16string& pText) noexcept {
  if constexpr (std::endian::native == std::endian::little)
    return CopyOut(pBase, pIndex, pText.data(), pText.size() * sizeof(char16_t));
  for (char16_t& unit : pText) pIndex = detail::Load<std::uint16_t>(pBase, pIndex, unit);
  return pIndex;
}

}  // namespace qzbase
