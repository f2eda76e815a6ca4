// What random calls beside the models do not reach: files, far bounds, memory that runs out, objects of others.
#include <limits>

#include <gtest/gtest.h>

#include "qzbase/data/CDblVectors.h"
#include "qzbase/data/CMatrix.h"
#include "qzbase/data/CObjVector.h"
#include "qzbase/data/CStrVector.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

void ExpectGolden(const CBuffer& pBuffer, const char* pClass) {
  EXPECT_EQ(pBuffer.ByteArray(), Storage(ReadTestFile(std::string("golden/") + pClass + ".bin"))) << pClass;
}

// The capacity, as `Value` shows it.
void ExpectCapacity(const auto& pVector, std::int32_t pCapacity) {
  EXPECT_EQ(ErrorOf([&] { pVector.Value(pCapacity); }), 0) << pCapacity;
  EXPECT_EQ(ErrorOf([&] { pVector.Value(pCapacity == kMost ? 0 : pCapacity + 1); }), kSubscript) << pCapacity;
}

// All in one file, one behind the other, by the declared type. The last two cannot be read back.
TEST(CVector, KeepsTheGoldenBytes) {
  const std::pair<QZVarType, std::vector<Variant>> rows[] = {
      {EVTBoolean, {true, 0, u"True"}},
      {EVTDouble, {1.5, 2, u"2,5", Variant()}},
      {EVTLong, {2.5, std::int16_t{3}, true}},
      {EVTString, {u"a;\u00C4\u4E2D", 2.5, false}},
      {EVTDate, {Date{2.5}, 3}},
      {EVTEnum, {u"7"}},
      {EVTObject, {1, Variant(nullptr)}},
      {QZVarType(99), {1}},
      {EVTInvalid, {7, u"x", Date{2}, Null(), 1.5f}},
      {EVTColor, {255}},
  };
  const ScopedLocale locale(TestLocale("de-DE"));
  CBuffer buffer;
  for (const auto& [type, values] : rows) {
    CVector vector;
    vector.LetVarType(type);
    for (const Variant& each : values) vector.AddValue(each);
    vector.SaveToBuffer(&buffer, true);
  }
  ExpectGolden(buffer, "CVector");
}

TEST(CMatrix, KeepsTheGoldenBytes) {
  CMatrix matrix;
  matrix.LetNrCols(2);
  matrix.LetNrRows(2);
  const Variant values[] = {u"\u00C4a", 7, true, -0.5};
  for (std::int32_t i = 0; i < 4; ++i) matrix.LetValue(i % 2 + 1, i / 2 + 1, values[i]);
  CBuffer buffer;
  matrix.SaveToBuffer(&buffer);
  ExpectGolden(buffer, "CMatrix");
}

TEST(CVector, LoadsAnyNumberOfElementsWithoutBytes) {
  for (const QZVarType type : {EVTObject, QZVarType(99)}) {
    CVector list, loaded;
    for (CVector* each : {&list, &loaded}) each->LetVarType(type);
    list.LetSize(70'000);
    CBuffer buffer;
    list.SaveToBuffer(&buffer);
    loaded.AddValue(2);
    loaded.LoadFromBuffer(&buffer);
    EXPECT_EQ(loaded.Size(), 70'000);
    EXPECT_EQ(ToLong(loaded.Value(1)), 2);
  }
}

TEST(CVector, CutsItsSlotsAtEveryInsertionInFairMemory) {
  CVector vector;
  const std::size_t before = RequestedBytes();
  for (int i = 0; i < 20'000; ++i) vector.InsertValue(0);
  EXPECT_LT(RequestedBytes() - before, std::size_t{8} * 1024 * 1024);  // memory doubles
  ExpectCapacity(vector, 20'000);
}

TEST(CDblVector, KeepsItsSlotsInBlocksUpToTheFarBounds) {
  const struct {
    std::int32_t blockSize, size, error, capacity;
  } rows[] = {
      {16, kLeast, kOverflow, 16},
      {1, kMost, 0, kMost},
      {1 << 30, (1 << 30) + 1, kOverflow, 1 << 30},
      {16, 524'288, 0, 524'288},
  };
  for (const auto& row : rows) {
    CDblVector vector;
    vector.LetBlockSize(row.blockSize);
    EXPECT_EQ(ErrorOf([&] { vector.LetSize(row.size); }), row.error) << row.blockSize << " " << row.size;
    EXPECT_EQ(vector.Size(), row.size);  // set first, and kept
    ExpectCapacity(vector, row.capacity);
  }
}

TEST(CDblVector, FailsForeverPast32767Blocks) {
  CDblVector vector;
  vector.LetSize(32'767 * 16);
  vector.AddValue(1);  // the block before is counted
  ExpectCapacity(vector, 32'768 * 16);
  EXPECT_EQ(ErrorOf([&] { vector.AddValue(2); }), kOverflow);
  EXPECT_EQ(ErrorOf([&] { vector.LetSize(1); }), kOverflow);
  EXPECT_EQ(vector.Size(), 1);
}

TEST(CStrVector, TakesTextsOutOfItsOwnSlots) {
  constexpr std::u16string_view kLong = u"longer than a text that needs no memory;2";
  CStrVector vector;
  vector.AddValue(kLong);
  vector.InsertValue(1, vector.Value(1));
  for (int i = 0; i < 40; ++i) vector.AddValue(vector.Value(1));  // moves the slots
  for (const std::int32_t i : {1, 2, 42}) EXPECT_EQ(vector.Value(i), kLong);
  vector.SetFromString(vector.Value(1));
  EXPECT_EQ(ToUtf8(vector.GetString()), "(longer than a text that needs no memory;2)");
}

TEST(Vectors, RaiseOutOfMemory) {
  CDblVector vector;
  CStrVector texts;
  vector.LetBlockSize(1 << 30);
  texts.LetBlockSize(1 << 30);
  std::u16string pieces = u"1";
  while (pieces.size() < 39'999) pieces += u";1";
  const ScopedMemoryLimit limit(100'000);
  EXPECT_EQ(ErrorOf([&] { vector.GetArray(); }), kOutOfMemory);
  EXPECT_EQ(ErrorOf([&] { vector.LetValue(1 << 30, 1); }), kOutOfMemory);
  vector.LetValue(10'000, 1);
  vector.LetValue(12'000, 2);  // too much for twice the memory, but not for what is needed
  EXPECT_EQ(vector.Value(10'000), 1);
  vector.LetSize(20'000);
  EXPECT_EQ(ErrorOf([&] { vector.Sort(); }), kOutOfMemory);
  EXPECT_EQ(ErrorOf([&] { vector.AddValue(1); }), kOutOfMemory);
  texts.LetSize(100'000);
  EXPECT_EQ(ErrorOf([&] { texts.GetString(); }), kOutOfMemory);
  vector.LetBlockSize(1);
  vector.SetFromString(pieces);
  EXPECT_EQ(vector.Sum(), 12'500);  // those for which there is memory
}

TEST(CObjVector, MayHoldItself) {
  const auto list = New<CObjVector>();
  list->LetRef(1, list);
  list->LetSize(1);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(ErrorOf([&] { list->GetCopy(); }), NumberOf(RuntimeError::OutOfStackSpace));
  list->LetRef(1, nullptr);
}

// An object of a host, whose default member is its title.
struct Note : Object {
  explicit Note(std::u16string pText) : text(std::move(pText)) {}

  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) override {
    if (pName == u"GetCopy") return text == u"no copy" ? Variant() : Variant(New<Note>(text));
    if (pName.empty() && pKind == CallKind::Let) return title = ToText(pArguments[0]);
    EXPECT_TRUE(ToBoolean(pArguments[1])) << "behind what is there";
    const auto buffer = *pArguments[0].If<Ref<Object>>();
    return pName == u"SaveToBuffer" ? buffer->Call(u"AddString", text) : text = ToText(buffer->Call(u"NextString"));
  }

  std::u16string title, text;
};

TEST(CObjVector, LoadsIntoTheObjectsThatItHolds) {
  CObjVector list, loaded;
  CBuffer buffer;
  const auto note = New<Note>(u"one");
  list.AddObject(u"first", note.get());
  list.AddObject(u"", New<CDblVectors>().get());
  note->text = u"later";
  list.SaveToBuffer(&buffer);
  ExpectGolden(buffer, "CObjVector");
  loaded.LetRef(1, note);
  loaded.LetRef(2, New<CDblVectors>());
  // Its class has no default member.
  EXPECT_EQ(ErrorOf([&] { loaded.LoadFromBuffer(&buffer); }), NumberOf(RuntimeError::MemberNotFound));
  EXPECT_EQ(note->title + u"," + note->text, u"first,one");
  note->text = u"no copy";
  EXPECT_EQ(ErrorOf([&] { loaded.AddObject(u"key", note.get()); }), kTypeMismatch);
  EXPECT_EQ(loaded.Index(u"KEY"), 3);  // without an object
}

}  // namespace
}  // namespace qzbase::tests
