#include "qzbase/persist/CBuffer.h"

#include <algorithm>
#include <span>
#include <utility>

#include "qzbase/core/ModError.h"
#include "qzbase/os/CodePage.h"
#include "qzbase/persist/Crc.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/Demand.h"
#include "qzbase/runtime/Memory.h"

namespace qzbase {
namespace {

using runtime::Array;
using runtime::CheckedNarrow;
using runtime::Raise;
using runtime::RuntimeError;
using runtime::Variant;

using Bytes = std::vector<std::uint8_t>;

constexpr std::int32_t kCapacityStep = 2048;
constexpr std::size_t kFirstBytes = 256;         // of memory
constexpr std::int32_t kCountSize = 4;           // bytes of a count
constexpr std::int64_t kCountTolerance = 65536;  // by which a count may exceed the bytes left
constexpr std::int32_t kCheckSumStart = 101192;  // do not change: checksums are compared with stored ones

Bytes CopyOf(std::span<const std::uint8_t> pBytes) {
  return runtime::WithMemory([&] { return Bytes(pBytes.begin(), pBytes.end()); });
}

void CheckCount(std::int64_t pCount, std::int32_t pBytesLeft) {
  if (pCount - std::max(pBytesLeft, 0) > kCountTolerance) Raise(RuntimeError::OutOfMemory);
}

// The elements from index 0 on. An array that begins above it has no such element.
std::span<const std::uint8_t> FromIndexZero(const Array<std::uint8_t>& pArray) {
  if (pArray.LowerBound() > 0) Raise(RuntimeError::SubscriptOutOfRange);
  const auto count = static_cast<std::size_t>(std::max(pArray.UpperBound() + 1, 0));
  return std::span(pArray.Elements()).last(count);
}

// How a value of each type is written and read.
struct ValueRecord {
  void (*add)(CBuffer& pBuffer, const Variant& pValue);
  Variant (*next)(CBuffer& pBuffer);
};

template <auto Add, auto Next, auto Convert>
constexpr ValueRecord Record() {
  return {[](CBuffer& pBuffer, const Variant& pValue) { (pBuffer.*Add)(Convert(pValue, runtime::ThreadLocale())); },
          [](CBuffer& pBuffer) { return Variant((pBuffer.*Next)()); }};
}

constexpr ValueRecord kNoRecord = {[](CBuffer&, const Variant&) {}, [](CBuffer&) { return Variant(); }};
constexpr ValueRecord kLongRecord = Record<&CBuffer::AddLong, &CBuffer::NextLong, &runtime::ToLong>();

// In the order of QZVarType.
constexpr ValueRecord kValueRecords[] = {
    kNoRecord,                                                                   // EVTInvalid
    Record<&CBuffer::AddBoolean, &CBuffer::NextBoolean, &runtime::ToBoolean>(),  // EVTBoolean
    Record<&CBuffer::AddDouble, &CBuffer::NextDouble, &runtime::ToDouble>(),     // EVTDouble
    kLongRecord,                                                                 // EVTLong
    Record<&CBuffer::AddString, &CBuffer::NextString, &runtime::ToText>(),       // EVTString
    Record<&CBuffer::AddDate, &CBuffer::NextDate, &runtime::ToDate>(),           // EVTDate
    Record<&CBuffer::AddColor, &CBuffer::NextColor, &runtime::ToLong>(),         // EVTColor
    kNoRecord,                                                                   // EVTObject
    kLongRecord,                                                                 // EVTEnum
};

const ValueRecord& RecordOf(QZVarType pVarType) {
  const bool known = pVarType >= 0 && static_cast<std::size_t>(pVarType) < std::size(kValueRecords);
  return known ? kValueRecords[pVarType] : kNoRecord;
}

}  // namespace

// Storage

void CBuffer::Clear() {
  bytes_.assign(kFirstBytes, 0);
  capacity_ = kCapacityStep;
  WriteHeader(kTypedFlag);
  typed_ = true;
}

// What does not fit into the memory at hand. Nothing has changed when it raises.
void CBuffer::GrowBy(std::int32_t pCount) {
  const auto size = CheckedNarrow<std::int32_t>(std::int64_t{size_} + pCount);
  const auto capacity = capacity_ < size ? CheckedNarrow<std::int32_t>(std::int64_t{size} + kCapacityStep) : capacity_;
  const auto end = CheckedNarrow<std::int32_t>(std::int64_t{cursor_} + pCount);
  if (end - 1 > capacity) Raise(RuntimeError::SubscriptOutOfRange);
  const std::size_t needed = static_cast<std::size_t>(std::max(size, end)) + 1;
  if (needed > bytes_.size()) runtime::Grow(bytes_, needed, std::max(needed, 2 * bytes_.size()));
  size_ = size;
  capacity_ = capacity;
}

void CBuffer::Trim() {
  CutToSize();
  bytes_.shrink_to_fit();
}

// What a cursor behind the data has written there is gone, and does not come back when the buffer grows.
void CBuffer::CutToSize() const {
  bytes_.resize(static_cast<std::size_t>(size_) + 1);
  capacity_ = size_;
}

Array<std::uint8_t> CBuffer::ByteArray() const {
  CutToSize();
  return {0, CopyOf(bytes_)};
}

void CBuffer::LetByteArray(const Array<std::uint8_t>& pBytes) {
  const std::span<const std::uint8_t> bytes = FromIndexZero(pBytes);
  if (bytes.empty()) Raise(RuntimeError::SubscriptOutOfRange);
  Adopt(CopyOf(bytes));
}

void CBuffer::CopyFrom(const CBuffer& pSource) {
  Adopt(std::move(pSource.ByteArray().Elements()));
}

runtime::Ref<CBuffer> CBuffer::GetCopy() const {
  auto copy = runtime::New<CBuffer>();
  copy->CopyFrom(*this);
  return copy;
}

void CBuffer::Adopt(Bytes pBytes) {
  bytes_ = std::move(pBytes);
  size_ = static_cast<std::int32_t>(bytes_.size()) - 1;
  capacity_ = size_;
  typed_ = ReadHeader() > 0;
}

void CBuffer::WriteHeader(std::uint8_t pFlag) {
  cursor_ = AddDataToBuff(bytes_.data(), 0, kHeaderMagic);
  cursor_ = AddByteToBuff(bytes_.data(), cursor_, pFlag);
  size_ = kHeaderSize;
}

// Puts the cursor on the first record and gives the flag byte, 0 where there is no header. Storage that ends behind
// the magic has a flag of 0.
std::uint8_t CBuffer::ReadHeader() noexcept {
  const auto storage = std::span(bytes_).first(static_cast<std::size_t>(size_) + 1);
  const bool found =
      storage.size() >= kHeaderMagic.size() && std::equal(kHeaderMagic.begin(), kHeaderMagic.end(), storage.begin());
  cursor_ = found ? kHeaderSize : 0;
  return found && storage.size() > kHeaderMagic.size() ? storage[kHeaderMagic.size()] : std::uint8_t{0};
}

std::int32_t CBuffer::CheckSum() const noexcept {
  return CRC(std::span(bytes_).first(static_cast<std::size_t>(size_)), kCheckSumStart);
}

bool CBuffer::BinaryEqual(const CBuffer& pBuffer) const {
  if (size_ != pBuffer.size_) return false;
  CutToSize();
  pBuffer.CutToSize();
  return std::equal(bytes_.begin() + 1, bytes_.end(), pBuffer.bytes_.begin() + 1);
}

// Records of variable size

// Makes room for a count and so many bytes, writes the count and gives the index of the bytes.
std::int32_t CBuffer::BeginCounted(RecordMarker pMarker, std::size_t pLength) {
  const auto length = CheckedNarrow<std::int32_t>(static_cast<std::int64_t>(pLength));
  const auto payload = CheckedNarrow<std::int32_t>(std::int64_t{length} + kCountSize + 1) - 1;
  const std::int32_t index = BeginRecord(pMarker, payload);
  return AddLongToBuff(bytes_.data(), index, length);
}

void CBuffer::AddTag(std::u16string_view Arg) {
  const std::string text = os::ToCodePage(Arg);
  const std::int32_t index = BeginCounted(RecordMarker::Tag, text.size());
  cursor_ = AddStringToBuff(bytes_.data(), index, text);
}

void CBuffer::AddData(const Array<std::uint8_t>& Arg) {
  const auto data = Arg.Size() > 0 ? FromIndexZero(Arg) : std::span<const std::uint8_t>();
  const std::int32_t index = BeginCounted(RecordMarker::Data, data.size());
  cursor_ = AddDataToBuff(bytes_.data(), index, data);
}

void CBuffer::AddString(std::u16string_view Arg) {
  const std::int32_t index = BeginCounted(RecordMarker::String, Arg.size() * sizeof(char16_t));
  cursor_ = AddWideStringToBuff(bytes_.data(), index, Arg);
}

void CBuffer::ExpectRecords(std::int32_t pCount, std::int32_t pLeastBytes) const {
  CheckedNarrow<std::int32_t>(std::int64_t{size_} + std::int64_t{pCount} * pLeastBytes);
}

// As many as fit at a time, so that the capacity grows as it does for one record after the other.
void CBuffer::RepeatRecord(std::int32_t pLength, std::int32_t pTimes) {
  ExpectRecords(pTimes, pLength);
  runtime::CheckDemand(pTimes, static_cast<std::size_t>(pLength));
  if (pLength < 1) return;
  while (pTimes > 0) {
    const std::int32_t fitting = std::clamp((capacity_ - size_) / pLength, 1, pTimes);
    ReserveSpace(fitting * pLength);
    for (const std::int32_t end = cursor_ + fitting * pLength; cursor_ < end; ++cursor_)
      bytes_[static_cast<std::size_t>(cursor_)] = bytes_[static_cast<std::size_t>(cursor_ - pLength)];
    pTimes -= fitting;
  }
}

// The byte at the cursor; 0 at the end of the data.
std::uint8_t CBuffer::PeekByte() const noexcept {
  return cursor_ < size_ ? bytes_[static_cast<std::size_t>(cursor_)] : std::uint8_t{0};
}

std::uint8_t CBuffer::ReadByte() noexcept {
  const std::uint8_t value = PeekByte();
  if (cursor_ < size_) ++cursor_;
  return value;
}

// A host that has given the registered error the number 0 has switched it off; reading on is no choice even then.
void CBuffer::RaiseWrongMarker() {
  ModError::RaiseBuiltIn(BuiltInError::InvVarType);
  Raise(RuntimeError::TypeMismatch);
}

// Reads the count of a tag or string: as it is while that many bytes are left, 0 where the record was cut.
std::int32_t CBuffer::NextTextLength() {
  if (BytesLeft() < kCountSize) return 0;
  std::int32_t count = 0;
  cursor_ = GetLongFromBuff(bytes_.data(), cursor_, count);
  CheckCount(count, BytesLeft());
  return count <= BytesLeft() ? count : 0;
}

std::u16string CBuffer::NextTag() {
  if (!typed_ || !CheckMarker(RecordMarker::Tag, cursor_)) return {};
  const std::int32_t count = NextTextLength();
  if (count < 0) Raise(RuntimeError::SubscriptOutOfRange);
  std::string text(static_cast<std::size_t>(count), '\0');
  cursor_ = GetStringFromBuff(bytes_.data(), cursor_, text);
  return os::FromCodePage(text);
}

// A text has half as many characters as bytes; an odd byte at its end is passed over.
std::u16string CBuffer::NextString() {
  if (!CheckMarker(RecordMarker::String, cursor_)) return {};
  const std::int32_t count = std::max(NextTextLength(), 0);
  std::u16string text(static_cast<std::size_t>(count) / sizeof(char16_t), u'\0');
  GetWideStringFromBuff(bytes_.data(), cursor_, text);
  cursor_ += count;
  return text;
}

Array<std::uint8_t> CBuffer::NextData() {
  Array<std::uint8_t> data(0, 1);
  if (!CheckMarker(RecordMarker::Data, cursor_) || BytesLeft() < kCountSize) return data;
  std::int32_t count = 0;
  cursor_ = GetLongFromBuff(bytes_.data(), cursor_, count);
  const auto end = CheckedNarrow<std::int32_t>(std::int64_t{cursor_} + count);
  if (count == 0 || end > size_) return data;
  if (count < 0) Raise(RuntimeError::SubscriptOutOfRange);
  data.ReDim(0, typed_ ? count - 1 : count);
  cursor_ = GetDataFromBuff(bytes_.data(), cursor_, std::span(data.Elements()).first(static_cast<std::size_t>(count)));
  return data;
}

// Values by their type

void CBuffer::AddObject(const Variant& Value, QZVarType VarType) {
  RecordOf(VarType == EVTInvalid ? VarTypeOf(Value) : VarType).add(*this, Value);
}

Variant CBuffer::NextObject(QZVarType VarType) {
  if (VarType == EVTInvalid) VarType = static_cast<QZVarType>(PeekByte());
  if (!typed_) ReadByte();
  return RecordOf(VarType).next(*this);
}

std::int32_t CBuffer::NextCount(std::int32_t pLeastBytes) {
  const std::int32_t count = NextLong();
  if (count > BytesLeft()) CheckCount(std::int64_t{count} * pLeastBytes, BytesLeft());
  return count;
}

}  // namespace qzbase
