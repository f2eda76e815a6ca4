#include <functional>

#include <gtest/gtest.h>

#include "qzbase/persist/CBuffer.h"
#include "qzbase/persist/Crc.h"
#include "qzbase/persist/Record.h"
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

TEST(CBuffer, RefusesOtherRecordsEvenWhereTheErrorHasNoNumber) {
  TErrDesc& entry = ModError::Registry().Entry(ModError::IndexOf(BuiltInError::InvVarType).Value);
  entry.Code = 0;
  CBuffer buffer;
  buffer.AddLong(1);
  buffer.ResetPos();
  EXPECT_EQ(ErrorOf([&] { buffer.NextDouble(); }), kTypeMismatch);
  entry.Code = kInvVarType;
}

// What random bytes beside the model hardly ever meet: counts that are too large by just so much.
TEST(CBuffer, BelievesCountsUpToSoManyMoreBytesThanThereAre) {
  const struct {
    std::string_view records;
    std::function<std::string(CBuffer&)> read;
    std::int32_t error;
  } rows[] = {
      {"01 05 00 01 00 05 01 00 00 00", [](CBuffer& b) { return ToUtf8(b.NextTag()); }, 0},  // 65,536 more than 5
      {"01 06 00 01 00 05 01 00 00 00", [](CBuffer& b) { return ToUtf8(b.NextTag()); }, kOutOfMemory},
      {"03 05 00 01 00 05 01 00 00 00", [](CBuffer& b) { return ToUtf8(b.NextString()); }, 0},
      {"03 06 00 01 00 05 01 00 00 00", [](CBuffer& b) { return ToUtf8(b.NextString()); }, kOutOfMemory},
      {"02 FF FF FF 7F", [](CBuffer& b) { return ToHex(b.NextData().Elements()); }, kOverflow},
  };
  for (const auto& row : rows) {
    CBuffer buffer;
    Load(buffer, row.records);
    EXPECT_EQ(ErrorOf([&] { EXPECT_EQ(row.read(buffer), ""); }), row.error) << row.records;
    EXPECT_EQ(row.error == 0 ? buffer.NextLong() : 1, 1) << row.records;
  }
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
      {"02 06 00 00 00 00 01 0A 10 FF 05", "#DATA#;"},
      {"02 05 00 00 00 01 0A 10 FF 05", "#4,<1>,<A>,<10>,<FF>;"},
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
  EXPECT_EQ(buffer.ByteArray(), Storage(ReadTestFile("golden/CBuffer.bin")));
}

TEST(Records, HaveTheVersionOfTheDigitsInTheirTag) {
  const std::u16string_view tags[] = {u"VD#2", u"VD#12#3", u"VD", u"#", u"VD#x1", u"VD#-1", u"#1.9", u"VD#1E999"};
  const std::int32_t versions[] = {2, 12, 0, 0, 0, 0, 1, 1};
  for (std::size_t i = 0; i < std::size(tags); ++i) EXPECT_EQ(TagVersion(tags[i]), versions[i]) << ToUtf8(tags[i]);
  EXPECT_EQ(TagVersion(u"#99999999999999999999999"), 2147483647);
}

TEST(Crc, IsTheReflectedCrc32) {
  const Bytes check = FromHex("31 32 33 34 35 36 37 38 39");
  EXPECT_EQ(static_cast<std::uint32_t>(~CRC(check, -1)), 0xCBF43926u);
}

}  // namespace
}  // namespace qzbase::tests
