#include "qzbase/persist/ModRegistry.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "qzbase/core/ModError.h"
#include "qzbase/os/CodePage.h"
#include "qzbase/os/RegistryStore.h"
#include "qzbase/persist/BufferPrimitives.h"

namespace qzbase::ModRegistry {
namespace {

using os::RegistryKind;
using os::RegistryResult;
using os::RegistryValue;
using os::ToCodePage;

constexpr std::size_t kNumberSize = 4;

std::int32_t NumberOf(RegistryResult pResult) {
  return static_cast<std::int32_t>(pResult);
}

// Raises what is no success.
std::int32_t Demand(RegistryResult pResult) {
  ModError::RaiseErr(NumberOf(pResult));
  return NumberOf(pResult);
}

RegistryResult Write(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey,
                     const RegistryValue& pValue) {
  return os::WriteRegistryValue(pRoot, ToCodePage(pSection), ToCodePage(pKey), pValue);
}

// A value of no kind, without bytes, where none could be read.
RegistryValue Read(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey) {
  RegistryValue value;
  os::ReadRegistryValue(pRoot, ToCodePage(pSection), ToCodePage(pKey), value);
  return value;
}

RegistryValue StoredNumber(std::int32_t pValue) {
  RegistryValue value{RegistryKind::Number, std::vector<std::uint8_t>(kNumberSize)};
  AddLongToBuff(value.data.data(), 0, pValue);
  return value;
}

RegistryValue StoredText(std::u16string_view pText) {
  const std::string text = ToCodePage(pText);
  return {RegistryKind::Text, {text.begin(), text.end()}};
}

// A value of no kind for what the store does not keep.
RegistryValue Stored(const runtime::Variant& pValue) {
  if (const auto* integer = pValue.If<std::int16_t>()) return StoredNumber(*integer);
  if (const auto* number = pValue.If<std::int32_t>()) return StoredNumber(*number);
  if (const auto* text = pValue.If<std::u16string>()) return StoredText(*text);
  return {};
}

// Bytes that another program has left out are zero.
std::int32_t NumberIn(RegistryValue pValue) {
  std::int32_t number = 0;
  pValue.data.resize(std::max(pValue.data.size(), kNumberSize));
  GetLongFromBuff(pValue.data.data(), 0, number);
  return number;
}

std::u16string TextIn(const RegistryValue& pValue) {
  std::string text(pValue.data.begin(), pValue.data.end());
  if (text.size() > 1) text.pop_back();
  return os::FromCodePage(text);
}

}  // namespace

std::int32_t CreateNewSection(TRegKey pRoot, std::u16string_view pSection) {
  return NumberOf(os::MakeRegistrySection(pRoot, ToCodePage(pSection)));
}

std::int32_t SaveBuffer(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey, const CBuffer& pBuffer) {
  std::vector<std::uint8_t> bytes = std::move(pBuffer.ByteArray().Elements());
  bytes.resize(static_cast<std::size_t>(pBuffer.Size()));
  return Demand(Write(pRoot, pSection, pKey, {RegistryKind::Binary, std::move(bytes)}));
}

Ref<CBuffer> GetBuffer(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey) {
  auto buffer = New<CBuffer>();
  RegistryValue value = Read(pRoot, pSection, pKey);
  if (value.kind != RegistryKind::Binary) return buffer;
  value.data.push_back(0);  // a buffer's bytes are one more than its size
  buffer->LetByteArray({0, std::move(value.data)});
  return buffer;
}

std::int32_t SaveValue(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey,
                       const runtime::Variant& pValue) {
  return NumberOf(Write(pRoot, pSection, pKey, Stored(pValue)));
}

runtime::Variant GetValue(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey) {
  RegistryValue value = Read(pRoot, pSection, pKey);
  if (value.kind == RegistryKind::Number) return NumberIn(std::move(value));
  if (value.kind == RegistryKind::Text) return TextIn(value);
  return {};
}

std::int32_t DeleteValue(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey) {
  return Demand(os::RemoveRegistryValue(pRoot, ToCodePage(pSection), ToCodePage(pKey)));
}

std::int32_t DeleteSection(TRegKey pRoot, std::u16string_view pSection) {
  return NumberOf(os::RemoveRegistrySection(pRoot, ToCodePage(pSection)));
}

}  // namespace qzbase::ModRegistry
