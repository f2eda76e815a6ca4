// The model of CBuffer: bytes, a cursor, and a flag that says whether records carry markers.
#pragma once

#include <cstring>

#include "qzbase/core/ModError.h"
#include "qzbase/os/CodePage.h"
#include "qzbase/runtime/DatePattern.h"
#include "tests/models/Model.h"

namespace qzbase::models {

class Buffer final : public ModelOf<Buffer> {
 public:
  static constexpr std::u16string_view kName = u"CBuffer";
  Buffer() { Clear(); }

  void AddTag(Text Arg) {
    const std::string bytes = os::ToCodePage(Arg);
    AddCounted(1, {bytes.begin(), bytes.end()});
  }
  void AddString(Text Arg) {
    std::vector<Byte> bytes(Arg.size() * 2);
    if (!Arg.empty()) std::memcpy(bytes.data(), Arg.data(), bytes.size());
    AddCounted(3, bytes);
  }
  void AddData(Array<Byte> Arg) {
    const std::int64_t count = Arg.Size() == 0 ? 0 : std::int64_t{Arg.UpperBound()} + 1;
    std::vector<Byte> bytes;
    for (Long i = 0; i < count; ++i) bytes.push_back(Arg[i]);
    AddCounted(2, bytes);
  }
  void AddDouble(double Arg) { AddFixed(4, Arg); }
  void AddLong(Long Arg) { AddFixed(5, Arg); }
  void AddBoolean(bool Arg) { AddFixed(6, static_cast<Byte>(Arg ? 0xFF : 0)); }
  void AddDate(Date Arg) { AddFixed(7, Arg.days); }
  void AddByte(Byte Arg) { AddFixed(8, Arg); }
  void AddColor(Long Arg) { AddFixed(9, Arg); }
  void AddObject(Variant Value, std::optional<QZVarType> VarType) {
    switch (VarType.value_or(EVTInvalid) != EVTInvalid ? *VarType : VarTypeOf(Value)) {
      case EVTBoolean:
        return AddBoolean(runtime::ToBoolean(Value));
      case EVTDouble:
        return AddDouble(runtime::ToDouble(Value));
      case EVTLong:
      case EVTEnum:
        return AddLong(runtime::ToLong(Value));
      case EVTString:
        return AddString(runtime::ToText(Value));
      case EVTDate:
        return AddDate(runtime::ToDate(Value));
      case EVTColor:
        return AddColor(runtime::ToLong(Value));
      default:
        return;
    }
  }

  Text NextTag() {
    if (!typed_ || !CheckMarker(1)) return u"";
    const std::optional<Long> count = NextTextCount();
    if (count && *count < 0) Raise(RuntimeError::SubscriptOutOfRange);
    const std::vector<Byte> bytes = Take(count.value_or(0));
    return os::FromCodePage(std::string(bytes.begin(), bytes.end()));
  }
  Text NextString() {
    CheckMarker(3);
    const std::vector<Byte> bytes = Take(NextTextCount().value_or(0));
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
  Byte NextByte() { return NextFixed<Byte>(8); }
  Long NextColor() { return NextFixed<Long>(9); }
  Variant NextObject(std::optional<QZVarType> VarType) {
    const Long type = VarType.value_or(EVTInvalid) != EVTInvalid ? Long{*VarType} : PeekByte();
    if (!typed_ && cursor_ < size_) ++cursor_;
    return NextOf(type);
  }
  Variant NextOf(Long pVarType) {
    switch (pVarType) {
      case EVTBoolean:
        return NextBoolean();
      case EVTDouble:
        return NextDouble();
      case EVTLong:
      case EVTEnum:
        return NextLong();
      case EVTString:
        return NextString();
      case EVTDate:
        return NextDate();
      case EVTColor:
        return NextColor();
      default:
        return {};
    }
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
  void LetByteArray(Array<Byte> pBytes) {
    if (pBytes.UpperBound() < 0 || pBytes.LowerBound() > 0) Raise(RuntimeError::SubscriptOutOfRange);
    std::vector<Byte> bytes;
    for (Long i = 0; i <= pBytes.UpperBound(); ++i) bytes.push_back(pBytes[i]);
    bytes_ = bytes;
    capacity_ = size_ = pBytes.UpperBound();
    typed_ = HasHeader() && bytes_.size() > 5 && bytes_[5] > 0;
    ResetPos();
  }
  void CopyFrom(Buffer& pSource) { LetByteArray(pSource.ByteArray()); }
  Long CheckSum() {
    std::uint32_t sum = 101192;
    for (Long i = 0; i < size_; ++i) {
      sum ^= bytes_[static_cast<std::size_t>(i)];
      for (int bit = 0; bit < 8; ++bit) sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320U : 0);
    }
    return static_cast<Long>(sum);
  }
  bool BinaryEqual(Buffer& pBuffer) {
    if (size_ != pBuffer.size_) return false;
    const Array<Byte> left = ByteArray(), right = pBuffer.ByteArray();
    for (Long i = 1; i <= size_; ++i)
      if (left[i] != right[i]) return false;
    return true;
  }
  Text GetString() {
    ResetPos();
    Text text;
    for (Long items = 0;; ++items) {
      if (items > 4000) throw TooMuch();
      const Long marker = PeekByte();
      if (marker == 1) {
        const Text tag = NextTag();
        text += (tag.substr(0, 1) == u"\\" ? u"" : u"\n/") + tag;
      } else if (marker == 2) {
        text += DataText(NextData());
      } else if (marker == 7) {
        const Date date = NextDate();
        try {
          text += runtime::FormatDate(date, u"dd.mm.yyyy hh:nn:ss");
        } catch (const runtime::AutomationError&) {
          text += runtime::ToText(date.days);
        }
      } else if (marker >= 3 && marker <= 9) {
        constexpr QZVarType kTypes[] = {EVTString, EVTDouble, EVTLong, EVTBoolean, EVTInvalid, EVTInvalid, EVTColor};
        text += runtime::ToText(marker == 8 ? Variant(std::int16_t{NextByte()}) : NextOf(kTypes[marker - 3]));
      } else {
        text += u"INVALIDTYPE!!";
        break;
      }
      text += u";";
      if (cursor_ >= size_) break;
    }
    return text.substr(0, 1) == u"\n" ? text.substr(1) : text;
  }

  static Members Rows() {
    return AllOf(Does(u"AddTag", &Buffer::AddTag), Does(u"AddData", &Buffer::AddData),
                 Does(u"AddString", &Buffer::AddString), Does(u"AddDouble", &Buffer::AddDouble),
                 Does(u"AddDate", &Buffer::AddDate), Does(u"AddBoolean", &Buffer::AddBoolean),
                 Does(u"AddLong", &Buffer::AddLong), Does(u"AddByte", &Buffer::AddByte),
                 Does(u"AddColor", &Buffer::AddColor), Does(u"AddObject", &Buffer::AddObject),
                 Does(u"NextTag", &Buffer::NextTag), Does(u"NextData", &Buffer::NextData),
                 Does(u"NextString", &Buffer::NextString), Does(u"NextDouble", &Buffer::NextDouble),
                 Does(u"NextDate", &Buffer::NextDate), Does(u"NextLong", &Buffer::NextLong),
                 Does(u"NextBoolean", &Buffer::NextBoolean), Does(u"NextByte", &Buffer::NextByte),
                 Does(u"NextColor", &Buffer::NextColor), Does(u"NextObject", &Buffer::NextObject),
                 Does(u"ResetPos", &Buffer::ResetPos), Does(u"ResetPos", &Buffer::ResetPos),
                 Does(u"Clear", &Buffer::Clear), Shown(Gets(u"Size", &Buffer::Size)), Does(u"Trim", &Buffer::Trim),
                 Does(u"GetString", &Buffer::GetString), Gets(u"ByteArray", &Buffer::ByteArray),
                 Lets(u"ByteArray", &Buffer::LetByteArray), Shown(Gets(u"CheckSum", &Buffer::CheckSum)),
                 Does(u"BinaryEqual", &Buffer::BinaryEqual), CopyRows());
  }

 private:
  static constexpr Long kBelieved = 65'536;  // bytes or elements more than there are

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
  void ReserveSpace(std::size_t pCount) {
    size_ = Checked(size_ + static_cast<std::int64_t>(pCount));
    if (capacity_ < size_) capacity_ = size_ + 2048;
    bytes_.resize(static_cast<std::size_t>(std::max(capacity_, cursor_ + static_cast<Long>(pCount))) + 1);
  }
  void Write(const void* pBytes, std::size_t pCount) {
    if (pCount > 0) std::memcpy(bytes_.data() + cursor_, pBytes, pCount);
    cursor_ += static_cast<Long>(pCount);
  }
  template <class T>
  void AddFixed(Byte pMarker, T pValue) {
    ReserveSpace(sizeof pValue + 1);
    Write(&pMarker, 1);
    Write(&pValue, sizeof pValue);
  }
  void AddCounted(Byte pMarker, const std::vector<Byte>& pBytes) {
    ReserveSpace(pBytes.size() + 5);
    const auto count = static_cast<Long>(pBytes.size());
    Write(&pMarker, 1);
    Write(&count, sizeof count);
    Write(pBytes.data(), pBytes.size());
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
  std::optional<Long> NextTextCount() {
    if (cursor_ + 4 > size_) return {};
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
  static Text DataText(const Array<Byte>& pBytes) {
    if (pBytes.UpperBound() >= 5) return u"#DATA#";
    Text text = u"#" + runtime::ToText(pBytes.UpperBound());
    for (Long i = 1; i <= pBytes.UpperBound(); ++i) {
      constexpr char16_t kDigits[] = u"0123456789ABCDEF";
      const Byte byte = pBytes[i - 1];
      text += u",<";
      if (byte >= 16) text += kDigits[byte / 16];
      text += kDigits[byte % 16];
      text += u'>';
    }
    return text;
  }

  std::vector<Byte> bytes_;
  Long capacity_ = 0, size_ = 0, cursor_ = 0;
  bool typed_ = true;
};

template <class Self>
void Save(Self& pObject, Buffer* pBuffer, std::optional<bool> pAppend) {
  if (!pBuffer) return;
  if (!pAppend.value_or(false)) pBuffer->Clear();
  const Text tag = Self::kTag;
  pBuffer->AddTag(tag);
  pObject.Write(*pBuffer);
  pBuffer->AddTag(u"\\" + tag.substr(0, tag.find(u'#')));
}

template <class Self>
void Load(Self& pObject, Buffer* pBuffer, std::optional<bool> pAppend) {
  if (!pBuffer) return;
  if (!pAppend.value_or(false)) pBuffer->ResetPos();
  const Text tag = pBuffer->NextTag();
  if constexpr (requires { pObject.Read(*pBuffer, tag); })
    pObject.Read(*pBuffer, tag);
  else
    pObject.Read(*pBuffer);
  pBuffer->NextTag();
}

}  // namespace qzbase::models
