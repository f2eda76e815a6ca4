// The one medium in which every class saves and loads itself: a growable byte array with a single cursor.
//
// A buffer is a header of six bytes and then records back to back, with no padding and no count. Whole numbers and
// doubles are little-endian on every machine; n is a 32-bit count.
//
//   header               03 26 A6 15 AB, then a flag byte: above 0 the records carry markers ("typed")
//
//   marker  written by   read by      payload                                           record length
//   1       AddTag       NextTag      n characters, then n bytes in the 8-bit code page  n + 5
//   2       AddData      NextData     n bytes, then the bytes                            n + 5
//   3       AddString    NextString   n bytes (two a character), then 16-bit text        n + 5
//   4       AddDouble    NextDouble   8 bytes                                            9
//   5       AddLong      NextLong     4 bytes                                            5
//   6       AddBoolean   NextBoolean  1 byte: FF true, 00 false                          2
//   7       AddDate      NextDate     8 bytes: days since 1899-12-30                     9
//   8       AddByte      NextByte     1 byte                                             2
//   9       AddColor     NextColor    4 bytes                                            5
//
//   CBuffer buffer;
//   buffer.AddTag(u"ab");  // 01  02 00 00 00  61 62
//   buffer.AddLong(7);     // 05  07 00 00 00
//   buffer.ResetPos();
//   buffer.NextTag();      // "ab"
//   buffer.NextLong();     // 7
//
// Whoever reads calls the readers in the order of the writers. A record of another kind raises InvVarType and leaves
// the cursor on its marker; only NextTag then gives "" instead, for that is how readers find the end of a list. At the
// end of the data, and where a record was cut, readers give the zero value ("", 0, false, day 0, two zero bytes).
//
// Older buffers have no header, or a flag of 0. Their records have no markers and no tags, and every value read by
// NextObject is preceded by one byte. They can be read; what is written always has markers.
//
// Counts in foreign bytes are not trusted: where that of a tag, a string or a container asks for over 65,536 bytes or
// elements more than bytes are left, error 7 (out of memory) is raised before anything is allocated. A data block that
// is not all there is two zero bytes, or error 6 (overflow) where its end would leave 32 bits. A negative count of a
// tag or data block raises error 9.
//
// Writing raises error 6 where the size leaves 32 bits and 7 where memory does not suffice; the buffer is unchanged
// then. Where a host has given InvVarType the number 0, which raises nothing, error 13 comes in its place.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "qzbase/core/QZVarType.h"
#include "qzbase/persist/BufferPrimitives.h"
#include "qzbase/persist/RecordMarkers.h"
#include "qzbase/runtime/Array.h"
#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Object.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase {

class CBuffer final : public runtime::Object {
 public:
  CBuffer() { Clear(); }

  // Each writes one record at the cursor, which is the end of the data after `Clear` or when everything has been read.
  // Anywhere else the bytes at the cursor are overwritten, while `Size` grows all the same.
  void AddTag(std::u16string_view Arg);
  void AddData(const runtime::Array<std::uint8_t>& Arg);  // from index 0; error 9 where the array begins above it
  void AddString(std::u16string_view Arg);
  void AddDouble(double Arg);
  void AddDate(runtime::Date Arg);
  void AddBoolean(bool Arg);
  void AddLong(std::int32_t Arg);
  void AddByte(std::uint8_t Arg);
  void AddColor(std::int32_t Arg);

  // Converts the value to the type and writes the type's record: EVTEnum as EVTLong, EVTInvalid as what the value is.
  // Nothing is written for objects and for values without a type. Raises the errors of the conversion.
  void AddObject(const runtime::Variant& Value, QZVarType VarType = EVTInvalid);

  // For lists whose elements are the same as far as the eye can see. The first raises error 6 where so many records of
  // at least so many bytes cannot be added; the second writes the last bytes before the cursor so many times more, and
  // raises 6 or 7 (Demand.h) before it writes.
  void ExpectRecords(std::int32_t pCount, std::int32_t pLeastBytes) const;
  void RepeatRecord(std::int32_t pLength, std::int32_t pTimes);

  std::u16string NextTag();
  runtime::Array<std::uint8_t> NextData();  // 0 to n - 1; from an untyped buffer 0 to n, the last byte zero
  std::u16string NextString();
  double NextDouble();
  runtime::Date NextDate();
  std::int32_t NextLong();
  bool NextBoolean();
  std::uint8_t NextByte();
  std::int32_t NextColor();

  // The value of a type's record; empty, and nothing read, for EVTObject and numbers that are no type. Without a type
  // the byte at the cursor is taken as one: right only for untyped buffers, since markers are numbered otherwise.
  runtime::Variant NextObject(QZVarType VarType = EVTInvalid);

  // `NextLong` for the number of elements of a container. Only a number above the bytes left is doubted: then each
  // element counts `pLeastBytes`, which elements that are far bigger than one byte once they are made must say, and
  // those that have no bytes.
  std::int32_t NextCount(std::int32_t pLeastBytes = 1);

  void ResetPos() { ReadHeader(); }                     // to the first record
  void Clear();                                         // to an empty typed buffer; memory is kept until `Trim`
  std::int32_t Size() const noexcept { return size_; }  // bytes in use, header included
  void Trim();                                          // gives back the memory behind the data

  // The upper bound of the storage as this format counts it: 2048 at first, size + 2048 whenever the size passes it.
  // Memory itself grows by doubling.
  std::int32_t Capacity() const noexcept { return capacity_; }

  // One line for each tag, for people. Reads from the first record, and leaves the cursor at the end of the data or on
  // the record that could not be read. Raises what the readers raise.
  std::u16string GetString();

  // Bounds 0 to `Size`: one byte more than the data, so that the upper bound, which the let takes for the size, gives
  // the same size again. Forgets what stands behind the data and trims the capacity; `Trim` gives back the memory too.
  runtime::Array<std::uint8_t> ByteArray() const;
  void LetByteArray(const runtime::Array<std::uint8_t>& pBytes);  // error 9 where there is no byte 0

  void CopyFrom(const CBuffer& pSource);  // trims the capacity of the source, as `ByteArray` does
  runtime::Ref<CBuffer> GetCopy() const;

  std::int32_t CheckSum() const noexcept;

  // Equal sizes and equal bytes from the second one to the one behind the data: the first byte never counts.
  // Trims the capacities of both where the sizes are equal.
  bool BinaryEqual(const CBuffer& pBuffer) const;

 private:
  void ReserveSpace(std::int32_t pCount);
  void GrowBy(std::int32_t pCount);
  std::int32_t WriteMarker(RecordMarker pMarker, std::int32_t pIndex) noexcept;
  std::int32_t BeginRecord(RecordMarker pMarker, std::int32_t pLength);
  std::int32_t BeginCounted(RecordMarker pMarker, std::size_t pLength);
  template <auto AddToBuff, class Value>
  void AddFixed(RecordMarker pMarker, Value pValue);
  void WriteHeader(std::uint8_t pFlag);

  std::uint8_t PeekByte() const noexcept;
  std::uint8_t ReadByte() noexcept;
  bool CheckMarker(RecordMarker pExpected, std::int32_t& pIndex) const;
  [[noreturn]] static void RaiseWrongMarker();
  template <auto GetFromBuff, class Value>
  Value NextFixed(RecordMarker pMarker);
  std::int32_t BytesLeft() const noexcept { return size_ - cursor_; }
  std::int32_t NextTextLength();
  std::uint8_t ReadHeader() noexcept;

  void CutToSize() const;
  void Adopt(std::vector<std::uint8_t> pBytes);
  bool AppendNextItem(std::u16string& pText);

  mutable std::vector<std::uint8_t> bytes_;  // at least size_ + 1 bytes, zero behind what was written
  mutable std::int32_t capacity_ = 0;        // bookkeeping only: handing out the bytes trims both
  std::int32_t size_ = 0;
  std::int32_t cursor_ = 0;  // next byte to read or write
  bool typed_ = true;
};

// The records of fixed size. They are the bulk of every vector and matrix, so their bodies are here, and read the
// cursor once and set it once: a loop over records then keeps it in a register.

inline void CBuffer::ReserveSpace(std::int32_t pCount) {
  const bool fits =
      pCount <= capacity_ - size_ && static_cast<std::size_t>(size_) + static_cast<std::size_t>(pCount) < bytes_.size();
  if (!fits || cursor_ > size_) return GrowBy(pCount);
  size_ += pCount;
}

inline std::int32_t CBuffer::WriteMarker(RecordMarker pMarker, std::int32_t pIndex) noexcept {
  return AddByteToBuff(bytes_.data(), pIndex, static_cast<std::uint8_t>(pMarker));
}

// Makes room for a record whose payload has `pLength` bytes and gives the index of the payload.
inline std::int32_t CBuffer::BeginRecord(RecordMarker pMarker, std::int32_t pLength) {
  ReserveSpace(pLength + 1);
  return WriteMarker(pMarker, cursor_);
}

template <auto AddToBuff, class Value>
void CBuffer::AddFixed(RecordMarker pMarker, Value pValue) {
  const std::int32_t index = BeginRecord(pMarker, sizeof pValue);
  cursor_ = AddToBuff(bytes_.data(), index, pValue);
}

// Moves the index behind the marker where it is the expected one; an untyped buffer has none to step over. A tag that
// is not there and the end of the data are answers, any other record is a fault.
inline bool CBuffer::CheckMarker(RecordMarker pExpected, std::int32_t& pIndex) const {
  if (!typed_) return true;
  if (pIndex >= size_) return false;
  if (bytes_[static_cast<std::size_t>(pIndex)] != static_cast<std::uint8_t>(pExpected)) {
    if (pExpected == RecordMarker::Tag) return false;
    RaiseWrongMarker();
  }
  ++pIndex;
  return true;
}

// Zero where the data ends, before the record or within it. A whole record with its marker is asked for first: that is
// the rule, and costs two comparisons.
template <auto GetFromBuff, class Value>
Value CBuffer::NextFixed(RecordMarker pMarker) {
  constexpr auto kLength = static_cast<std::int32_t>(sizeof(Value));
  Value value{};
  std::int32_t index = cursor_;
  const bool isWhole = typed_ && kLength < size_ - index;
  if (isWhole && bytes_[static_cast<std::size_t>(index)] == static_cast<std::uint8_t>(pMarker)) [[likely]]
    index = GetFromBuff(bytes_.data(), index + 1, value);
  else if (CheckMarker(pMarker, index) && kLength <= size_ - index)
    index = GetFromBuff(bytes_.data(), index, value);
  cursor_ = index;
  return value;
}

inline void CBuffer::AddDouble(double Arg) {
  AddFixed<&AddDoubleToBuff>(RecordMarker::Double, Arg);
}
inline void CBuffer::AddDate(runtime::Date Arg) {
  AddFixed<&AddDoubleToBuff>(RecordMarker::Date, Arg.days);
}
inline void CBuffer::AddLong(std::int32_t Arg) {
  AddFixed<&AddLongToBuff>(RecordMarker::Long, Arg);
}
inline void CBuffer::AddColor(std::int32_t Arg) {
  AddFixed<&AddLongToBuff>(RecordMarker::Color, Arg);
}
inline void CBuffer::AddByte(std::uint8_t Arg) {
  AddFixed<&AddByteToBuff>(RecordMarker::Byte, Arg);
}
inline void CBuffer::AddBoolean(bool Arg) {
  AddFixed<&AddByteToBuff>(RecordMarker::Boolean, Arg ? std::uint8_t{0xFF} : std::uint8_t{0x00});
}

inline double CBuffer::NextDouble() {
  return NextFixed<&GetDoubleFromBuff, double>(RecordMarker::Double);
}
inline runtime::Date CBuffer::NextDate() {
  return {NextFixed<&GetDoubleFromBuff, double>(RecordMarker::Date)};
}
inline std::int32_t CBuffer::NextLong() {
  return NextFixed<&GetLongFromBuff, std::int32_t>(RecordMarker::Long);
}
inline std::int32_t CBuffer::NextColor() {
  return NextFixed<&GetLongFromBuff, std::int32_t>(RecordMarker::Color);
}
inline std::uint8_t CBuffer::NextByte() {
  return NextFixed<&GetByteFromBuff, std::uint8_t>(RecordMarker::Byte);
}
inline bool CBuffer::NextBoolean() {
  return NextFixed<&GetByteFromBuff, std::uint8_t>(RecordMarker::Boolean) != 0;
}

}  // namespace qzbase
