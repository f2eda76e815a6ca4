#include <gtest/gtest.h>

#include "qzbase/persist/CBuffer.h"
#include "qzbase/persist/Crc.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Array;
using runtime::Date;

constexpr std::string_view kTyped = "03 26 A6 15 AB 01 ", kUntyped = "03 26 A6 15 AB 00 ";

const std::int32_t kInvVarType = NumberOf(BuiltInError::InvVarType);

void Load(CBuffer& pBuffer, std::string_view pRecords, std::string_view pHeader = kTyped) {
  pBuffer.LetByteArray(Storage(FromHex(std::string(pHeader).append(pRecords))));
}

// What can be read with a count, as text.
std::string (*const kReaders[])(CBuffer&) = {
    [](CBuffer& b) { return ToUtf8(b.NextTag()); },
    [](CBuffer& b) { return ToHex(b.NextData().Elements()); },
    [](CBuffer& b) { return ToUtf8(b.NextString()); },
};

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
    EXPECT_EQ(ErrorOf([&] { read = kReaders[row.reader](buffer); }), row.error) << row.records;
    EXPECT_EQ(read, row.read) << row.records;
    EXPECT_EQ(row.error == 0 ? buffer.NextLong() : 0, row.behind) << row.records;
  }
}

TEST(CBuffer, GivesNothingThatStandsBehindItsEnd) {
  CBuffer buffer;
  buffer.LetByteArray({0, FromHex("03 26 A6 15 AB")});
  buffer.AddDouble(-1);  // from 6 to 14, where the size is 13
  buffer.ByteArray();
  buffer.AddByte(1);
  EXPECT_EQ(buffer.ByteArray()[14], 0);
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
      {"01 01 00 00 00 61 04 00 00 00 00 00 00 04 C0 01 02 00 00 00 5C 61 01 00 00 00 00", "/a;-2,5;\\a;\n/;"},
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
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));
}

TEST(Crc, IsTheReflectedCrc32) {
  const std::string_view digits = "123456789";
  const Bytes check(digits.begin(), digits.end());
  EXPECT_EQ(static_cast<std::uint32_t>(~CRC(check, -1)), 0xCBF43926u);
}

}  // namespace
}  // namespace qzbase::tests
