#include <functional>
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

constexpr std::string_view kHeader = "03 26 A6 15 AB 01";

const std::int32_t kInvVarType = NumberOf(BuiltInError::InvVarType);

// What a buffer holds behind its header.
std::string Records(const CBuffer& pBuffer) {
  Bytes bytes = pBuffer.ByteArray().Elements();
  EXPECT_EQ(bytes.size(), static_cast<std::size_t>(pBuffer.Size()) + 1);
  bytes.pop_back();
  const std::string hex = ToHex(bytes);
  EXPECT_EQ(hex.substr(0, kHeader.size()), kHeader);
  return hex.size() > kHeader.size() ? hex.substr(kHeader.size() + 1) : std::string();
}

void Load(CBuffer& pBuffer, std::string_view pRecords) {
  pBuffer.LetByteArray(Storage(FromHex(std::string(kHeader) + " " + std::string(pRecords))));
}

bool IsSame(const Variant& pLeft, const Variant& pRight) {
  if (pLeft.Kind() != pRight.Kind()) return false;
  return pLeft.IsEmpty() || runtime::Compare(pLeft, pRight) == runtime::Order::Equal;
}

void LoadUntyped(CBuffer& pBuffer, std::string_view pRecords) {
  pBuffer.LetByteArray(Storage(FromHex("03 26 A6 15 AB 00 " + std::string(pRecords))));
}

// What the golden file does not hold.
TEST(CBuffer, WritesTheBytesOfTheFormat) {
  struct Row {
    const char* what;
    std::function<void(CBuffer&)> write;
    std::string_view bytes;
  };
  const Row rows[] = {
      {"nothing", [](CBuffer&) {}, ""},
      {"tag outside the code page", [](CBuffer& b) { b.AddTag(u"\u4E2D"); }, "01 01 00 00 00 3F"},
      {"empty tag", [](CBuffer& b) { b.AddTag(u""); }, "01 00 00 00 00"},
      {"data from index 0",
       [](CBuffer& b) {
         b.AddData({-1, {7, 8}});
       },
       "02 01 00 00 00 08"},
      {"unallocated data", [](CBuffer& b) { b.AddData({}); }, "02 00 00 00 00"},
      {"empty string", [](CBuffer& b) { b.AddString(u""); }, "03 00 00 00 00"},
      {"false", [](CBuffer& b) { b.AddBoolean(false); }, "06 00"},
      {"over the first record", [](CBuffer& b) { b.AddLong(1), b.ResetPos(), b.AddLong(2); },
       "05 02 00 00 00 00 00 00 00 00"},
  };
  for (const Row& row : rows) {
    CBuffer buffer;
    row.write(buffer);
    EXPECT_EQ(Records(buffer), row.bytes) << row.what;
  }
  CBuffer buffer;
  EXPECT_EQ(ErrorOf([&] { buffer.AddData(Array<std::uint8_t>(1, 1)); }), kSubscript);
  EXPECT_EQ(buffer.Size(), kHeaderSize);
}

TEST(CBuffer, WritesAndReadsObjectsByTheirType) {
  struct Row {
    Variant value;
    QZVarType type;
    std::string_view bytes;
    Variant read;
    std::int32_t error = 0;
  };
  const Row rows[] = {
      {Variant(), EVTInvalid, "", {}},
      {Null{}, EVTInvalid, "", {}},
      {Array<double>(1, 1), EVTInvalid, "", {}},
      {std::int16_t{2}, EVTInvalid, "05 02 00 00 00", {}},
      {1.0f, EVTInvalid, "04 00 00 00 00 00 00 F0 3F", {}},
      {Date{1}, EVTDate, "07 00 00 00 00 00 00 F0 3F", Date{1}},
      {u"a", EVTString, "03 02 00 00 00 61 00", u"a"},
      {true, EVTBoolean, "06 FF", true},
      {true, EVTLong, "05 FF FF FF FF", -1},
      {1, EVTDouble, "04 00 00 00 00 00 00 F0 3F", 1.0},
      {2.5, EVTEnum, "05 02 00 00 00", 2},
      {7, EVTColor, "09 07 00 00 00", 7},
      {7, EVTObject, "", {}},
      {7, static_cast<QZVarType>(9), "", {}},
      {7, static_cast<QZVarType>(-1), "", {}},
      {u"x", EVTDouble, "", 0.0, kTypeMismatch},
      {3e9, EVTLong, "", 0, kOverflow},
  };
  int number = 0;
  for (const Row& row : rows) {
    CBuffer buffer;
    EXPECT_EQ(ErrorOf([&] { buffer.AddObject(row.value, row.type); }), row.error) << number;
    EXPECT_EQ(Records(buffer), row.bytes) << number;
    buffer.ResetPos();
    if (row.type != EVTInvalid) {
      EXPECT_TRUE(IsSame(buffer.NextObject(row.type), row.read)) << number;
    }
    ++number;
  }
  // On a typed buffer the marker is taken for a type: right for none of them.
  struct Untold {
    std::string_view records;
    std::int32_t error;
  };
  for (const Untold& row : {Untold{"05 07 00 00 00", kInvVarType}, Untold{"04 00 00 00 00 00 00 F0 3F", kInvVarType},
                            Untold{"07 00 00 00 00 00 00 F0 3F", 0}, Untold{"09 07 00 00 00", 0}}) {
    CBuffer buffer;
    Load(buffer, row.records);
    EXPECT_EQ(ErrorOf([&] { EXPECT_TRUE(buffer.NextObject().IsEmpty()); }), row.error) << row.records;
  }
}

// Every reader, as something that shows what it read, and a record for it.
struct Reader {
  const char* name;
  std::function<std::string(CBuffer&)> read;
  std::string_view zero;
  std::string_view record;
  std::string_view value;
};

const Reader kReaders[] = {
    {"NextTag", [](CBuffer& b) { return ToUtf8(b.NextTag()); }, "", "01 02 00 00 00 61 62", "ab"},
    {"NextData", [](CBuffer& b) { return ToHex(b.NextData().Elements()); }, "00 00", "02 03 00 00 00 07 08 00",
     "07 08 00"},
    {"NextString", [](CBuffer& b) { return ToUtf8(b.NextString()); }, "", "03 04 00 00 00 E4 00 2D 4E", "\u00E4\u4E2D"},
    {"NextDouble", [](CBuffer& b) { return std::to_string(b.NextDouble()); }, "0.000000", "04 00 00 00 00 00 00 E0 BF",
     "-0.500000"},
    {"NextLong", [](CBuffer& b) { return std::to_string(b.NextLong()); }, "0", "05 07 00 00 80", "-2147483641"},
    {"NextBoolean", [](CBuffer& b) { return std::to_string(b.NextBoolean()); }, "0", "06 01", "1"},
    {"NextDate", [](CBuffer& b) { return std::to_string(b.NextDate().days); }, "0.000000", "07 00 00 00 00 00 00 F4 3F",
     "1.250000"},
    {"NextByte", [](CBuffer& b) { return std::to_string(b.NextByte()); }, "0", "08 C8", "200"},
    {"NextColor", [](CBuffer& b) { return std::to_string(b.NextColor()); }, "0", "09 FF FF FF FF", "-1"},
};

TEST(CBuffer, ReadsRecordsAndGivesZeroWithoutThem) {
  for (const Reader& reader : kReaders) {
    CBuffer buffer;
    EXPECT_EQ(reader.read(buffer), reader.zero) << reader.name;
    for (std::size_t cut = 2; cut < reader.record.size(); cut += 3) {
      Load(buffer, reader.record.substr(0, cut));
      EXPECT_EQ(reader.read(buffer), reader.zero) << reader.name << " " << reader.record.substr(0, cut);
    }
    Load(buffer, std::string(reader.record) + " 0A");
    EXPECT_EQ(reader.read(buffer), reader.value) << reader.name;
    const bool isTag = &reader == &kReaders[0];
    for (int again = 0; again < 2; ++again)  // the cursor stays on the marker
      EXPECT_EQ(ErrorOf([&] { EXPECT_EQ(reader.read(buffer), reader.zero); }), isTag ? 0 : kInvVarType) << reader.name;
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
  struct Row {
    std::string_view records;
    std::size_t reader;  // of kReaders
    std::string_view read;
    std::int32_t error;
    std::int32_t behind;  // the long that a following record gives; 0: none is left to read
  };
  const Row rows[] = {
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
  for (const Row& row : rows) {
    CBuffer buffer;
    Load(buffer, row.records);
    std::string read;
    EXPECT_EQ(ErrorOf([&] { read = kReaders[row.reader].read(buffer); }), row.error) << row.records;
    EXPECT_EQ(read, row.read) << row.records;
    if (row.error == 0) {
      EXPECT_EQ(buffer.NextLong(), row.behind) << row.records;
    }
  }
}

TEST(CBuffer, ReadsUntypedBuffers) {
  CBuffer buffer;
  LoadUntyped(buffer, "07 00 00 00 02 00 00 00 61 00 03 00 00 00 01 02 03 01");
  EXPECT_EQ(buffer.NextTag(), u"");
  EXPECT_EQ(buffer.NextLong(), 7);
  EXPECT_EQ(buffer.NextString(), u"a");
  EXPECT_EQ(ToHex(buffer.NextData().Elements()), "01 02 03 00");  // one byte more than from a typed buffer
  EXPECT_EQ(buffer.NextLong(), 0);                                // too short: the cursor stays
  EXPECT_TRUE(buffer.NextBoolean());

  LoadUntyped(buffer, "03 07 00 00 00 03 08 00 00 00 07 09");
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
  EXPECT_EQ(ToHex(buffer.ByteArray().Elements()), "03 26 A6 15 AB 01 00");
  buffer.AddLong(7);
  const auto copy = buffer.GetCopy();
  EXPECT_EQ(copy->Size(), 11);
  EXPECT_TRUE(copy->BinaryEqual(buffer));
  EXPECT_EQ(copy->Capacity(), 11);
  EXPECT_EQ(buffer.Capacity(), 11);
  Bytes data = buffer.ByteArray().Elements();
  data.pop_back();
  EXPECT_EQ(copy->CheckSum(), CRC(data, 101192));
  EXPECT_EQ(copy->NextLong(), 7);  // a copy stands on its first record
  buffer.CopyFrom(buffer);
  EXPECT_EQ(buffer.NextLong(), 7);

  struct Row {
    std::size_t changed;
    bool equal;
  };
  for (const Row& row : {Row{0, true}, Row{1, false}, Row{10, false}, Row{11, false}}) {
    Array<std::uint8_t> bytes = buffer.ByteArray();
    bytes.Elements()[row.changed] ^= 1;
    CBuffer other;
    other.LetByteArray(bytes);
    EXPECT_EQ(buffer.BinaryEqual(other), row.equal) << row.changed;
  }
  CBuffer other;
  EXPECT_FALSE(buffer.BinaryEqual(other));
  EXPECT_EQ(other.Capacity(), 2048);
  EXPECT_TRUE(other.BinaryEqual(CBuffer()));
  EXPECT_EQ(other.Capacity(), kHeaderSize);
  other.LetByteArray(Storage(FromHex("03 26 A6 15 AB FF 05 07 00 00 00")));  // any flag above 0
  EXPECT_EQ(other.NextLong(), 7);

  // Storage too short for a header, and for what follows its magic.
  for (std::size_t size = 1; size <= 7; ++size) {
    Bytes bytes = FromHex("03 26 A6 15 AB 01 05");
    bytes.resize(size);
    buffer.LetByteArray({0, bytes});
    EXPECT_EQ(buffer.Size(), static_cast<std::int32_t>(size) - 1);
    EXPECT_EQ(buffer.NextLong(), 0) << size;
    buffer.AddByte(1);
    EXPECT_EQ(buffer.Size(), static_cast<std::int32_t>(size) + 1) << size;
  }
  EXPECT_EQ(ErrorOf([&] { buffer.LetByteArray({}); }), kSubscript);
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
  EXPECT_EQ(buffer.Size(), kHeaderSize);
  EXPECT_EQ(buffer.Capacity(), 2048);
  EXPECT_EQ(Records(buffer), "");
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
    EXPECT_EQ(ErrorOf([] { Array<double>(1, 1 << 30); }), kOutOfMemory);
    EXPECT_EQ(buffer.Size(), size);
    buffer.AddData(Array<std::uint8_t>(0, 299'999));  // too much for twice the memory, but not for what is needed
  }
  EXPECT_EQ(buffer.Size(), size + 300'005);
  const ScopedMemoryLimit limit(1000);
  EXPECT_EQ(ErrorOf([&] { buffer.ByteArray(); }), kOutOfMemory);
}

TEST(CBuffer, DumpsItselfForPeople) {
  const runtime::ScopedLocale locale(TestLocale("de-DE"));
  struct Row {
    std::string_view records;
    std::string_view dump;
  };
  const Row rows[] = {
      {"", "INVALIDTYPE!!"},
      {"05 07 00 00 00", "7;"},
      {"01 01 00 00 00 61 04 00 00 00 00 00 00 04 C0 01 02 00 00 00 5C 61 01 00 00 00 00", "/a;-2,5;\\a;\n/;"},
      {"06 FF 06 00 08 C8 09 FF FF FF FF 03 02 00 00 00 61 00", "True;False;200;-1;a;"},
      {"02 00 00 00 00", "#1,<0>;"},
      {"02 03 00 00 00 0A FF 01", "#2,<A>,<FF>;"},
      {"02 05 00 00 00 01 02 03 04 05", "#4,<1>,<2>,<3>,<4>;"},
      {"02 06 00 00 00 01 02 03 04 05 06", "#DATA#;"},
      {"05 07 00 00 00 0A 05", "7;INVALIDTYPE!!"},
      {"05 07 00 00 00 00 05", "7;INVALIDTYPE!!"},
      {"05 03 00", "0;;INVALIDTYPE!!"},  // behind a record that was cut, its bytes are taken for markers
  };
  for (const Row& row : rows) {
    CBuffer buffer;
    Load(buffer, row.records);
    for (int again = 0; again < 2; ++again) EXPECT_EQ(ToUtf8(buffer.GetString()), row.dump) << row.records;
  }
  const std::pair<double, std::string_view> dates[] = {
      {1.5, "31.12.1899 12:00:00;"},
      {-657434.5, "01.01.100 12:00:00;"},
      {-657435, "-657435;"},  // no days of the calendar
      {2958465.9999999, "2958465,9999999;"},
  };
  for (const auto& [days, dump] : dates) {
    CBuffer buffer;
    buffer.AddDate({days});
    EXPECT_EQ(ToUtf8(buffer.GetString()), dump);
  }
  CBuffer untyped;  // what looks like a tag can move nothing there
  LoadUntyped(untyped, "01 02 03 04");
  EXPECT_EQ(ToUtf8(untyped.GetString()), "/;INVALIDTYPE!!");
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
  Bytes bytes = buffer.ByteArray().Elements();
  bytes.pop_back();
  const std::string golden = ReadTestFile("golden/CBuffer.bin");
  EXPECT_EQ(ToHex(bytes), ToHex(Bytes(golden.begin(), golden.end())));
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
