#include <utility>

#include <gtest/gtest.h>

#include "qzbase/persist/CBuffer.h"
#include "qzbase/persist/Crc.h"
#include "qzbase/runtime/Compare.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Array;
using runtime::Date;
using runtime::Null;
using runtime::Variant;

constexpr std::string_view kTyped = "03 26 A6 15 AB 01 ", kUntyped = "03 26 A6 15 AB 00 ";

const std::int32_t kInvVarType = NumberOf(BuiltInError::InvVarType);

// The data of a buffer.
std::string Shown(const CBuffer& pBuffer) {
  Bytes bytes = pBuffer.ByteArray().Elements();
  EXPECT_EQ(bytes.size(), static_cast<std::size_t>(pBuffer.Size()) + 1);
  bytes.pop_back();
  return ToHex(bytes) + ' ';
}

void Load(CBuffer& pBuffer, std::string_view pRecords, std::string_view pHeader = kTyped) {
  pBuffer.LetByteArray(Storage(FromHex(std::string(pHeader).append(pRecords))));
}

// What the golden file does not hold.
TEST(CBuffer, WritesTheBytesOfTheFormat) {
  CBuffer buffer;
  EXPECT_EQ(Shown(buffer), kTyped);
  buffer.AddLong(1);
  buffer.ResetPos();
  buffer.AddTag(u"\u4E2D");  // outside the code page; written over the first record
  buffer.AddData({-1, {7, 8}});
  buffer.AddData({});
  EXPECT_EQ(ErrorOf([&] { buffer.AddData(Array<std::uint8_t>(1, 1)); }), kSubscript);
  buffer.AddString(u"");
  buffer.AddBoolean(false);
  EXPECT_EQ(Shown(buffer), std::string(kTyped) +
                               "01 01 00 00 00 3F 02 01 00 00 00 08 02 00 00 00 00 03 00 00 00 00 06 00 "
                               "00 00 00 00 00 ");
}

TEST(CBuffer, WritesAndReadsObjectsByTheirType) {
  const struct {
    Variant value;
    QZVarType type;
    std::string_view bytes;
    Variant read;
    std::int32_t error = 0;
  } rows[] = {
      {Null{}, EVTInvalid, "", {}},
      {Array<double>(1, 1), EVTInvalid, "", {}},
      {std::int16_t{2}, EVTInvalid, "05 02 00 00 00 ", {}},
      {1.0f, EVTInvalid, "04 00 00 00 00 00 00 F0 3F ", {}},
      {Date{1}, EVTDate, "07 00 00 00 00 00 00 F0 3F ", Date{1}},
      {u"a", EVTString, "03 02 00 00 00 61 00 ", u"a"},
      {true, EVTBoolean, "06 FF ", true},
      {true, EVTLong, "05 FF FF FF FF ", -1},
      {1, EVTDouble, "04 00 00 00 00 00 00 F0 3F ", 1.0},
      {2.5, EVTEnum, "05 02 00 00 00 ", 2},
      {7, EVTColor, "09 07 00 00 00 ", 7},
      {7, EVTObject, "", {}},
      {7, static_cast<QZVarType>(9), "", {}},
      {u"x", EVTDouble, "", 0.0, kTypeMismatch},
      {3e9, EVTLong, "", 0, kOverflow},
  };
  for (const auto& row : rows) {
    CBuffer buffer;
    EXPECT_EQ(ErrorOf([&] { buffer.AddObject(row.value, row.type); }), row.error) << &row - rows;
    EXPECT_EQ(Shown(buffer), std::string(kTyped).append(row.bytes));
    if (row.type == EVTInvalid) continue;
    buffer.ResetPos();
    const Variant read = buffer.NextObject(row.type);
    EXPECT_EQ(read.Kind(), row.read.Kind()) << &row - rows;
    EXPECT_TRUE(read.IsEmpty() || runtime::Compare(read, row.read) == runtime::Order::Equal) << &row - rows;
  }
  // On a typed buffer the marker is taken for a type: right for none of them.
  const std::pair<std::string_view, std::int32_t> untold[] = {{"05 07 00 00 00", kInvVarType},
                                                              {"07 00 00 00 00 00 00 F0 3F", 0}};
  for (const auto& [records, error] : untold) {
    CBuffer buffer;
    Load(buffer, records);
    EXPECT_EQ(ErrorOf([&] { EXPECT_TRUE(buffer.NextObject().IsEmpty()); }), error) << records;
  }
}

// Every reader, as something that shows what it read, and a record for it.
const struct {
  std::string (*read)(CBuffer&);
  std::string_view zero, record, value;
} kReaders[] = {
    {[](CBuffer& b) { return ToUtf8(b.NextTag()); }, "", "01 02 00 00 00 61 62", "ab"},
    {[](CBuffer& b) { return ToHex(b.NextData().Elements()); }, "00 00", "02 03 00 00 00 07 08 00", "07 08 00"},
    {[](CBuffer& b) { return ToUtf8(b.NextString()); }, "", "03 04 00 00 00 E4 00 2D 4E", "\u00E4\u4E2D"},
    {[](CBuffer& b) { return std::to_string(b.NextDouble()); }, "0.000000", "04 00 00 00 00 00 00 E0 BF", "-0.500000"},
    {[](CBuffer& b) { return std::to_string(b.NextLong()); }, "0", "05 07 00 00 80", "-2147483641"},
    {[](CBuffer& b) { return std::to_string(b.NextBoolean()); }, "0", "06 01", "1"},
    {[](CBuffer& b) { return std::to_string(b.NextDate().days); }, "0.000000", "07 00 00 00 00 00 00 F4 3F",
     "1.250000"},
    {[](CBuffer& b) { return std::to_string(b.NextByte()); }, "0", "08 C8", "200"},
    {[](CBuffer& b) { return std::to_string(b.NextColor()); }, "0", "09 FF FF FF FF", "-1"},
};

TEST(CBuffer, ReadsRecordsAndGivesZeroWithoutThem) {
  for (const auto& reader : kReaders) {
    CBuffer buffer;
    EXPECT_EQ(reader.read(buffer), reader.zero) << reader.record;
    for (std::size_t cut = 2; cut < reader.record.size(); cut += 3) {
      Load(buffer, reader.record.substr(0, cut));
      EXPECT_EQ(reader.read(buffer), reader.zero) << reader.record.substr(0, cut);
    }
    Load(buffer, std::string(reader.record) + " 0A");
    EXPECT_EQ(reader.read(buffer), reader.value);
    const bool isTag = &reader == &kReaders[0];
    for (int again = 0; again < 2; ++again)  // the cursor stays on the marker
      EXPECT_EQ(ErrorOf([&] { EXPECT_EQ(reader.read(buffer), reader.zero); }), isTag ? 0 : kInvVarType);
  }
}

TEST(CBuffer, RefusesOtherRecordsEvenWhereTheErrorHasNoNumber) {
  TErrDesc& entry = ModError::Registry().Entry(ModError::IndexOf(BuiltInError::InvVarType).Value);
  entry.Code = 0;
  CBuffer buffer;
  buffer.AddLong(1);
  buffer.ResetPos();
  EXPECT_EQ(ErrorOf([&] { buffer.NextDouble(); }), kTypeMismatch);
  entry.Code = kInvVarType;
}

TEST(CBuffer, DoesNotTrustCounts) {
  const struct {
    std::string_view records;
    std::size_t reader;  // of kReaders
    std::string_view read;
    std::int32_t error, behind;  // the long that a following record gives; 0: none is left to read
  } rows[] = {
      {"01 FF FF FF FF", 0, "", kSubscript, 0},
      {"01 05 00 01 00 05 01 00 00 00", 0, "", 0, 1},  // 65,536 more than the 5 bytes that are left
      {"01 06 00 01 00 05 01 00 00 00", 0, "", kOutOfMemory, 0},
      {"03 FF FF FF FF 05 01 00 00 00", 2, "", 0, 1},
      {"03 03 00 00 00 61 00 62 05 01 00 00 00", 2, "a", 0, 1},  // an odd byte is passed over
      {"03 05 00 01 00 05 01 00 00 00", 2, "", 0, 1},
      {"03 FF FF FF 7F", 2, "", kOutOfMemory, 0},
      {"02 00 00 00 00 05 01 00 00 00", 1, "00 00", 0, 1},
      {"02 FF FF FF 00 05 01 00 00 00", 1, "00 00", 0, 1},
      {"02 FF FF FF 7F", 1, "", kOverflow, 0},
      {"02 FF FF FF FF", 1, "", kSubscript, 0},
  };
  for (const auto& row : rows) {
    CBuffer buffer;
    Load(buffer, row.records);
    std::string read;
    EXPECT_EQ(ErrorOf([&] { read = kReaders[row.reader].read(buffer); }), row.error) << row.records;
    EXPECT_EQ(read, row.read) << row.records;
    EXPECT_EQ(row.error == 0 ? buffer.NextLong() : 0, row.behind) << row.records;
  }
}

TEST(CBuffer, ReadsUntypedBuffers) {
  CBuffer buffer;
  Load(buffer, "07 00 00 00 02 00 00 00 61 00 03 00 00 00 01 02 03 01", kUntyped);
  EXPECT_EQ(buffer.NextTag(), u"");
  EXPECT_EQ(buffer.NextLong(), 7);
  EXPECT_EQ(buffer.NextString(), u"a");
  EXPECT_EQ(ToHex(buffer.NextData().Elements()), "01 02 03 00");  // one byte more than from a typed buffer
  EXPECT_EQ(buffer.NextLong(), 0);                                // too short: the cursor stays
  EXPECT_TRUE(buffer.NextBoolean());

  Load(buffer, "03 07 00 00 00 03 08 00 00 00 07 09", kUntyped);
  EXPECT_EQ(*buffer.NextObject().If<std::int32_t>(), 7);         // the byte says what follows
  EXPECT_EQ(*buffer.NextObject(EVTLong).If<std::int32_t>(), 8);  // and is skipped when the type is given
  EXPECT_TRUE(buffer.NextObject().IsEmpty());
  EXPECT_EQ(buffer.NextByte(), 9);

  buffer.LetByteArray({0, {1, 2, 3, 4, 5}});  // no header at all
  EXPECT_EQ(buffer.Size(), 4);
  EXPECT_EQ(buffer.NextLong(), 0x04030201);
  buffer.ResetPos();
  EXPECT_EQ(buffer.NextByte(), 1);
  buffer.AddByte(7);  // what is written has markers all the same
  EXPECT_EQ(ToHex(buffer.ByteArray().Elements()), "01 08 07 04 05 00 00");
}

TEST(CBuffer, GivesAndTakesItsBytes) {
  CBuffer buffer;
  buffer.AddLong(7);
  const auto copy = buffer.GetCopy();
  EXPECT_EQ(copy->Size(), 11);
  EXPECT_EQ(copy->Capacity(), 11);
  EXPECT_EQ(buffer.Capacity(), 11);
  EXPECT_EQ(copy->CheckSum(), CRC(FromHex("03 26 A6 15 AB 01 05 07 00 00 00"), 101192));
  EXPECT_EQ(copy->NextLong(), 7);  // a copy stands on its first record
  buffer.CopyFrom(buffer);
  EXPECT_EQ(buffer.NextLong(), 7);

  const std::pair<std::string_view, bool> others[] = {
      {"02 26 A6 15 AB 01 05 07 00 00 00 00", true},  {"03 26 A6 15 AB 01 05 07 00 00 00 00", true},
      {"03 27 A6 15 AB 01 05 07 00 00 00 00", false}, {"03 26 A6 15 AB 01 05 07 00 00 01 00", false},
      {"03 26 A6 15 AB 01 05 07 00 00 00 01", false}, {"03 26 A6 15 AB 01 00", false}};
  CBuffer other;
  for (const auto& [bytes, equal] : others) {
    other.LetByteArray({0, FromHex(bytes)});
    EXPECT_EQ(buffer.BinaryEqual(other), equal) << bytes;
  }
  other.Clear();
  EXPECT_TRUE(other.BinaryEqual(CBuffer()));
  EXPECT_EQ(other.Capacity(), kHeaderSize);
  Load(other, "05 07 00 00 00", "03 26 A6 15 AB FF ");  // any flag above 0
  EXPECT_EQ(other.NextLong(), 7);

  // Storage too short for a header, and for what follows its magic.
  Bytes bytes;
  for (const std::uint8_t byte : FromHex("03 26 A6 15 AB 01 05")) {
    bytes.push_back(byte);
    buffer.LetByteArray({0, bytes});
    const std::int32_t size = buffer.Size();
    EXPECT_EQ(size + 1, static_cast<std::int32_t>(bytes.size()));
    EXPECT_EQ(buffer.NextLong(), 0) << size;
    buffer.AddByte(1);
    EXPECT_EQ(buffer.Size(), size + 2);
  }
  EXPECT_EQ(ErrorOf([&] { buffer.LetByteArray({1, {1, 2}}); }), kSubscript);
}

TEST(CBuffer, CountsItsCapacityInSteps) {
  CBuffer buffer;
  EXPECT_EQ(buffer.Capacity(), 2048);
  while (buffer.Size() < 2048) buffer.AddByte(1);
  EXPECT_EQ(buffer.Capacity(), 2048);
  buffer.AddByte(1);
  EXPECT_EQ(buffer.Capacity(), 2050 + 2048);
  buffer.Trim();
  EXPECT_EQ(buffer.Capacity(), 2050);
  for (int i = 0; i < 100'000; ++i) buffer.AddDouble(i);
  buffer.ResetPos();
  for (int i = 0; i < (2050 - kHeaderSize) / 2; ++i) EXPECT_EQ(buffer.NextByte(), 1);
  for (int i = 0; i < 100'000; ++i) ASSERT_EQ(buffer.NextDouble(), i);
  buffer.Clear();
  EXPECT_EQ(buffer.Capacity(), 2048);
  EXPECT_EQ(Shown(buffer), kTyped);
}

TEST(CBuffer, IsUnchangedWhereMemoryDoesNotSuffice) {
  CBuffer buffer;
  const Array<std::uint8_t> half(0, 499'999), whole(0, 999'999);
  buffer.AddData(half);
  const std::int32_t size = buffer.Size();
  {
    const ScopedMemoryLimit limit(900'000);
    EXPECT_EQ(ErrorOf([&] { buffer.AddData(whole); }), kOutOfMemory);
    EXPECT_EQ(ErrorOf([&] { buffer.LetByteArray(whole); }), kOutOfMemory);
    EXPECT_EQ(buffer.Size(), size);
    buffer.AddData(Array<std::uint8_t>(0, 299'999));  // too much for twice the memory, but not for what is needed
  }
  EXPECT_EQ(buffer.Size(), size + 300'005);
  const ScopedMemoryLimit limit(1000);
  EXPECT_EQ(ErrorOf([&] { buffer.ByteArray(); }), kOutOfMemory);
}

TEST(CBuffer, DumpsItselfForPeople) {
  const runtime::ScopedLocale locale(TestLocale("de-DE"));
  const struct {
    std::string_view records, dump;
    std::string_view header = kTyped;
  } rows[] = {
      {"", "INVALIDTYPE!!"},
      {"01 01 00 00 00 61 04 00 00 00 00 00 00 04 C0 01 02 00 00 00 5C 61 01 00 00 00 00", "/a;-2,5;\\a;\n/;"},
      {"06 FF 06 00 08 C8 09 FF FF FF FF 03 02 00 00 00 61 00", "True;False;200;-1;a;"},
      {"02 00 00 00 00", "#1,<0>;"},
      {"02 03 00 00 00 0A FF 01", "#2,<A>,<FF>;"},
      {"02 05 00 00 00 01 02 03 04 05", "#4,<1>,<2>,<3>,<4>;"},
      {"02 06 00 00 00 01 02 03 04 05 06", "#DATA#;"},
      {"05 07 00 00 00 0A 05", "7;INVALIDTYPE!!"},
      {"05 07 00 00 00 00 05", "7;INVALIDTYPE!!"},
      {"05 03 00", "0;;INVALIDTYPE!!"},  // behind a record that was cut, its bytes are taken for markers
      {"07 00 00 00 00 00 00 F8 3F", "31.12.1899 12:00:00;"},
      {"07 00 00 00 00 35 10 24 C1", "01.01.100 12:00:00;"},
      {"07 00 00 00 00 36 10 24 C1", "-657435;"},  // no day of the calendar
      {"07 29 FF FF FF 40 92 46 41", "2958465,9999999;"},
      {"01 02 03 04", "/;INVALIDTYPE!!", kUntyped},  // what looks like a tag can move nothing there
  };
  for (const auto& row : rows) {
    CBuffer buffer;
    Load(buffer, row.records, row.header);
    for (int again = 0; again < 2; ++again) EXPECT_EQ(ToUtf8(buffer.GetString()), row.dump) << row.records;
  }
}

TEST(CBuffer, KeepsTheGoldenBytes) {
  CBuffer buffer;
  buffer.AddTag(u"Test#1");
  buffer.AddData({0, {0, 1, 255}});
  buffer.AddString(u"H\u00F6he \u4E2D");
  buffer.AddDouble(kInvalidDouble);
  buffer.AddLong(kInvalidLong);
  buffer.AddBoolean(true);
  buffer.AddDate(Date{36526.5});
  buffer.AddByte(254);
  buffer.AddColor(16777215);
  buffer.AddTag(u"\\Test");
  const std::string golden = ReadTestFile("golden/CBuffer.bin");
  EXPECT_EQ(Shown(buffer), ToHex(Bytes(golden.begin(), golden.end())) + ' ');
}

TEST(Crc, IsTheReflectedCrc32OfAnyLength) {
  const std::string_view digits = "123456789";
  const Bytes check(digits.begin(), digits.end());
  EXPECT_EQ(static_cast<std::uint32_t>(~CRC(check, -1)), 0xCBF43926u);
  EXPECT_EQ(CRC({}, 101192), 101192);

  Bytes bytes;
  auto expected = std::uint32_t{101192};
  for (std::uint32_t i = 0; i < 100; ++i) {
    EXPECT_EQ(static_cast<std::uint32_t>(CRC(bytes, 101192)), expected) << i;
    bytes.push_back(static_cast<std::uint8_t>(i * 151 + 7));
    expected ^= bytes.back();
    for (int bit = 0; bit < 8; ++bit) expected = (expected >> 1) ^ ((expected & 1) != 0 ? 0xEDB88320u : 0u);
  }
}

}  // namespace
}  // namespace qzbase::tests
