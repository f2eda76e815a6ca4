// The model of CBuffer: bytes, a cursor, and a flag that says whether records carry markers.
#pragma once

#include <cstring>

#include "qzbase/core/ModError.h"
#include "qzbase/os/CodePage.h"
#include "qzbase/persist/Crc.h"
#include "tests/models/Model.h"

namespace qzbase::models {

class Buffer final : public ModelOf<Buffer> {
 public:
  static constexpr std::u16string_view kName = u"CBuffer";
  Buffer() { Clear(); }

  void AddTag(const Text& Arg) {
    const std::string bytes = os::ToCodePage(Arg);
    AddCounted(1, bytes.data(), bytes.size());
  }
  void AddString(const Text& Arg) { AddCounted(3, Arg.data(), Arg.size() * 2); }
  void AddData(const Array<Byte>& Arg) {
    const std::vector<Byte> bytes = FromZero(Arg);
    AddCounted(2, bytes.data(), bytes.size());
  }
  void AddDouble(double Arg) { AddFixed(4, Arg); }
  void AddLong(Long Arg) { AddFixed(5, Arg); }
  void AddBoolean(bool Arg) { AddFixed(6, static_cast<Byte>(Arg ? 0xFF : 0)); }
  void AddDate(Date Arg) { AddFixed(7, Arg.days); }
  void AddByte(std::int16_t Arg) { AddFixed(8, static_cast<Byte>(Arg)); }
  void AddColor(Long Arg) { AddFixed(9, Arg); }
  void AddObject(const Variant& Value, std::optional<QZVarType> VarType) {
    if (const Kind* kind = KindOf(VarType.value_or(EVTInvalid) != EVTInvalid ? *VarType : VarTypeOf(Value)))
      kind->add(*this, Value);
  }

  Text NextTag() {
    if (!typed_ || !CheckMarker(1)) return u"";
    const Long count = NextTextCount();
    if (count < 0) Raise(RuntimeError::SubscriptOutOfRange);
    const std::vector<Byte> bytes = Take(count);
    return os::FromCodePage(std::string(bytes.begin(), bytes.end()));
  }
  Text NextString() {
    CheckMarker(3);
    const std::vector<Byte> bytes = Take(NextTextCount());
    Text text(bytes.size() / 2, 0);
    if (!text.empty()) std::memcpy(text.data(), bytes.data(), text.size() * 2);
    return text;
  }
  Array<Byte> NextData() {
    CheckMarker(2);
    if (cursor_ + 4 > size_) return {0, 1};
    const Long count = Read<Long>();
    if (Checked(std::int64_t{cursor_} + count) > size_ || count == 0) return {0, 1};
    if (count < 0) Raise(RuntimeError::SubscriptOutOfRange);
    std::vector<Byte> bytes = Take(count);
    if (!typed_) bytes.push_back(0);
    return {0, std::move(bytes)};
  }
  double NextDouble() { return NextFixed<double>(4); }
  Long NextLong() { return NextFixed<Long>(5); }
  bool NextBoolean() { return NextFixed<Byte>(6) != 0; }
  Date NextDate() { return {NextFixed<double>(7)}; }
  std::int16_t NextByte() { return NextFixed<Byte>(8); }
  Long NextColor() { return NextFixed<Long>(9); }
  Variant NextObject(std::optional<QZVarType> VarType) {
    const Long type = VarType.value_or(EVTInvalid) != EVTInvalid ? Long{*VarType} : PeekByte();
    if (!typed_ && cursor_ < size_) ++cursor_;
    return NextOf(type);
  }
  Variant NextOf(Long pVarType) {
    const Kind* kind = KindOf(pVarType);
    return kind ? kind->next(*this) : Variant();
  }
  // The number of elements of a container, each of which takes so many bytes at least.
  Long NextCount(Long pLeastBytes = 1) {
    const Long count = NextLong(), left = size_ - cursor_;
    if (count > left && std::int64_t{count} * pLeastBytes > std::int64_t{left} + kBelieved)
      Raise(RuntimeError::OutOfMemory);
    return count;
  }

  void ResetPos() { cursor_ = HasHeader() ? 6 : 0; }
  void Clear() {
    bytes_ = {0x03, 0x26, 0xA6, 0x15, 0xAB, 1};
    bytes_.resize(2049);
    capacity_ = 2048;
    size_ = cursor_ = 6;
    typed_ = true;
  }
  Long Size() { return size_; }
  Long Capacity() { return capacity_; }
  void Trim() {
    bytes_.resize(static_cast<std::size_t>(size_) + 1);
    capacity_ = size_;
  }
  Array<Byte> ByteArray() {
    Trim();
    return {0, bytes_};
  }
  void LetByteArray(const Array<Byte>& pBytes) {
    if (pBytes.UpperBound() < 0 || pBytes.LowerBound() > 0) Raise(RuntimeError::SubscriptOutOfRange);
    bytes_ = FromZero(pBytes);
    capacity_ = size_ = pBytes.UpperBound();
    typed_ = HasHeader() && bytes_.size() > 5 && bytes_[5] > 0;
    ResetPos();
  }
  void CopyFrom(Buffer& pSource) { LetByteArray(pSource.ByteArray()); }
  Long CheckSum() { return CRC(std::span(bytes_).first(static_cast<std::size_t>(size_)), 101192); }
  bool BinaryEqual(Buffer& pBuffer) {
    if (size_ != pBuffer.size_) return false;
    const Array<Byte> left = ByteArray(), right = pBuffer.ByteArray();
    return std::equal(left.begin() + 1, left.end(), right.begin() + 1);  // the first byte does not count
  }
  static Members Rows() {
    using B = Buffer;
    return Calls<&B::AddTag, &B::AddData, &B::AddString, &B::AddDouble, &B::AddDate, &B::AddBoolean, &B::AddLong,
                 &B::AddByte, &B::AddColor, &B::AddObject, &B::NextTag, &B::NextData, &B::NextString, &B::NextDouble,
                 &B::NextDate, &B::NextLong, &B::NextBoolean, &B::NextByte, &B::NextColor, &B::NextObject, &B::ResetPos,
                 &B::ResetPos, &B::Clear, &B::Trim, &B::ByteArray, &B::BinaryEqual>() +
           Shown<&B::Size, &B::CheckSum>() + Lets<&B::LetByteArray>() + Copies();
  }

 private:
  static constexpr Long kBelieved = 65'536;  // bytes or elements more than there are

  // How the values of a type are written and read.
  struct Kind {
    QZVarType type;
    void (*add)(Buffer&, const Variant&);
    Variant (*next)(Buffer&);
  };
  template <auto kAdd, auto kConvert>
  static void Add(Buffer& pBuffer, const Variant& pValue) {
    (pBuffer.*kAdd)(kConvert(pValue, runtime::ThreadLocale()));
  }
  template <auto kNext>
  static Variant Next(Buffer& pBuffer) {
    return (pBuffer.*kNext)();
  }
  static const Kind* KindOf(Long pType) {
    using B = Buffer;
    static constexpr Kind kKinds[] = {
        {EVTBoolean, &Add<&B::AddBoolean, &runtime::ToBoolean>, &Next<&B::NextBoolean>},
        {EVTDouble, &Add<&B::AddDouble, &runtime::ToDouble>, &Next<&B::NextDouble>},
        {EVTLong, &Add<&B::AddLong, &runtime::ToLong>, &Next<&B::NextLong>},
        {EVTEnum, &Add<&B::AddLong, &runtime::ToLong>, &Next<&B::NextLong>},
        {EVTString, &Add<&B::AddString, &runtime::ToText>, &Next<&B::NextString>},
        {EVTDate, &Add<&B::AddDate, &runtime::ToDate>, &Next<&B::NextDate>},
        {EVTColor, &Add<&B::AddColor, &runtime::ToLong>, &Next<&B::NextColor>},
    };
    for (const Kind& each : kKinds)
      if (each.type == pType) return &each;
    return nullptr;
  }

  // From index 0 on, where an array need not begin.
  static std::vector<Byte> FromZero(const Array<Byte>& pBytes) {
    if (pBytes.Size() == 0) return {};
    if (pBytes.LowerBound() > 0) Raise(RuntimeError::SubscriptOutOfRange);
    return {pBytes.begin() + std::min<std::int64_t>(pBytes.Size(), -std::int64_t{pBytes.LowerBound()}), pBytes.end()};
  }
  bool HasHeader() const {
    constexpr Byte kMagic[] = {0x03, 0x26, 0xA6, 0x15, 0xAB};
    return bytes_.size() >= sizeof kMagic && std::memcmp(bytes_.data(), kMagic, sizeof kMagic) == 0;
  }
  Long PeekByte() const { return cursor_ + 1 > size_ ? 0 : bytes_[static_cast<std::size_t>(cursor_)]; }
  bool CheckMarker(Byte pMarker) {
    if (!typed_) return true;
    const Long marker = PeekByte();
    if (marker == pMarker) ++cursor_;
    // Nothing is read at the end of the data, which is no fault.
    if (marker != pMarker && pMarker != 1 && cursor_ < size_)
      ModError::RaiseErr(ModError::ErrCodeOf(ModError::IndexOf(BuiltInError::InvVarType)), u"*");
    return marker == pMarker;
  }
  void Write(const void* pBytes, std::size_t pCount) {
    if (pCount > 0) std::memcpy(bytes_.data() + cursor_, pBytes, pCount);
    cursor_ += static_cast<Long>(pCount);
  }
  void Begin(Byte pMarker, std::size_t pCount) {
    size_ = Checked(size_ + static_cast<std::int64_t>(pCount));
    if (capacity_ < size_) capacity_ = size_ + 2048;
    bytes_.resize(static_cast<std::size_t>(std::max(capacity_, cursor_ + static_cast<Long>(pCount))) + 1);
    Write(&pMarker, 1);
  }
  template <class T>
  void AddFixed(Byte pMarker, T pValue) {
    Begin(pMarker, sizeof pValue + 1);
    Write(&pValue, sizeof pValue);
  }
  void AddCounted(Byte pMarker, const void* pBytes, std::size_t pCount) {
    Begin(pMarker, pCount + 5);
    const auto count = static_cast<Long>(pCount);
    Write(&count, sizeof count);
    Write(pBytes, pCount);
  }
  template <class T>
  T Read() {
    T value;
    std::memcpy(&value, bytes_.data() + cursor_, sizeof value);
    cursor_ += static_cast<Long>(sizeof value);
    return value;
  }
  template <class T>
  T NextFixed(Byte pMarker) {
    if (!CheckMarker(pMarker) || cursor_ + static_cast<Long>(sizeof(T)) > size_) return T{};
    return Read<T>();
  }
  Long NextTextCount() {
    if (cursor_ + 4 > size_) return 0;
    const Long count = Read<Long>();
    if (std::int64_t{count} > std::int64_t{size_} - cursor_ + kBelieved) Raise(RuntimeError::OutOfMemory);
    return count;
  }
  std::vector<Byte> Take(Long pCount) {
    if (pCount <= 0 || std::int64_t{cursor_} + pCount > size_) return {};
    const auto from = bytes_.begin() + cursor_;
    cursor_ += pCount;
    return {from, from + pCount};
  }
  std::vector<Byte> bytes_;
  Long capacity_ = 0, size_ = 0, cursor_ = 0;
  bool typed_ = true;
};

inline void Save(Buffer* pBuffer, bool pAppend, const Text& pTag, const std::function<void()>& pWrite) {
  if (!pBuffer) return;
  if (!pAppend) pBuffer->Clear();
  pBuffer->AddTag(pTag);
  pWrite();
  pBuffer->AddTag(u"\\" + pTag.substr(0, pTag.find(u'#')));
}

inline void Load(Buffer* pBuffer, bool pAppend, const std::function<void(const Text&)>& pRead) {
  if (!pBuffer) return;
  if (!pAppend) pBuffer->ResetPos();
  pRead(pBuffer->NextTag());
  pBuffer->NextTag();
}

}  // namespace qzbase::models
