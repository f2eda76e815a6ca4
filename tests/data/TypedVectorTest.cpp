#include <concepts>
#include <limits>

#include <gtest/gtest.h>

#include "qzbase/data/CBoolVector.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Array;
using runtime::ScopedLocale;

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

template <class Vector>
Vector& Set(Vector& pVector, std::vector<typename Vector::Type> pValues) {
  pVector.SetFromArray({0, std::move(pValues)});
  return pVector;
}

template <class Vector>
std::string Shown(const Vector& pVector) {
  return ToUtf8(pVector.GetString());
}

// What all four have, over the values that each of them distinguishes.
template <class Vector>
struct Samples;
template <>
struct Samples<CDblVector> {
  static constexpr double a = 1.5, b = 2;
  static constexpr const char *text = "(1.5;2;1.5)", *golden = "CDblVector.bin";
  static std::vector<double> Golden() { return {1.5, kInvalidDouble, -0.0, 1e308}; }
};
template <>
struct Samples<CLngVector> {
  static constexpr std::int32_t a = 1, b = -2;
  static constexpr const char *text = "(1;-2;1)", *golden = "CLngVector.bin";
  static std::vector<std::int32_t> Golden() { return {7, kInvalidLong, kMost}; }
};
template <>
struct Samples<CStrVector> {
  static constexpr std::u16string_view a = u"x", b = u"~";
  static constexpr const char *text = "(x;~;x)", *golden = "CStrVector.bin";
  static std::vector<std::u16string> Golden() { return {u"a;b", u"~", u"", u"\u00C4\u4E2D"}; }
};
template <>
struct Samples<CBoolVector> {
  static constexpr bool a = true, b = false;
  static constexpr const char *text = "(True;False;True)", *golden = "CBoolVector.bin";
  static std::vector<bool> Golden() { return {true, false, true}; }
};

template <class Vector>
struct EveryVector : testing::Test {
  ScopedLocale locale{TestLocale("en-US")};
};
using AllVectors = testing::Types<CDblVector, CLngVector, CStrVector, CBoolVector>;
TYPED_TEST_SUITE(EveryVector, AllVectors);

TYPED_TEST(EveryVector, BeginsEmptyWithZeroSlots) {
  const TypeParam vector;
  const std::int32_t slots = std::same_as<TypeParam, CBoolVector> ? 1 : 16;
  EXPECT_EQ(vector.Size(), 0);
  EXPECT_EQ(Shown(vector), "()");
  EXPECT_EQ(vector.GetArray(), Array<typename TypeParam::Type>(1, slots));
  for (const std::int32_t index : {kLeast, 0, slots + 1, kMost}) {
    EXPECT_EQ(ErrorOf([&] { vector.Value(index); }), kSubscript) << index;
    EXPECT_EQ(ErrorOf([&] { TypeParam().LetValue(index, Samples<TypeParam>::a); }), kSubscript) << index;
  }
}

TYPED_TEST(EveryVector, InsertsAndDeletes) {
  using S = Samples<TypeParam>;
  TypeParam vector;
  vector.AddValue(S::a);
  vector.InsertValue(7, S::a);  // past the end
  vector.InsertValue(2, S::b);
  EXPECT_EQ(Shown(vector), S::text);
  EXPECT_EQ(vector.Index(S::a, -5), 1);
  EXPECT_EQ(vector.Index(S::a, 2), 3);
  EXPECT_EQ(vector.Index(S::a, 4), -1);
  EXPECT_EQ(vector.Index(S::b, kMost), -1);

  vector.DeleteValue(1);
  EXPECT_EQ(vector.Value(1), S::b);
  EXPECT_EQ(vector.Value(2), S::a);
  vector.DeleteValue(kMost);  // moves nothing, but drops the last one
  EXPECT_EQ(vector.Size(), 1);
  EXPECT_EQ(ErrorOf([&] { vector.DeleteValue(0); }), kSubscript);
  EXPECT_EQ(vector.Size(), 1);
  for (int i = 0; i < 40; ++i) vector.InsertValue(1, S::b);
  vector.DeleteValue(41);
  EXPECT_EQ(vector.Size(), 40);
  for (int i = 1; i <= 40; ++i) EXPECT_EQ(vector.Value(i), S::b);
}

TYPED_TEST(EveryVector, CopiesComparesAndReads) {
  using S = Samples<TypeParam>;
  TypeParam vector, longer, unwritten;
  vector.SetFromString(FromUtf8(S::text));
  EXPECT_EQ(Shown(vector), S::text);
  const auto copy = vector.GetCopy();
  EXPECT_TRUE(copy->IsEqual(vector));
  copy->LetValue(2, S::a);
  EXPECT_FALSE(copy->IsEqual(vector));
  copy->CopyFrom(vector);
  copy->CopyFrom(*copy);
  EXPECT_EQ(Shown(*copy), S::text);
  copy->LetSize(2);
  EXPECT_FALSE(copy->IsEqual(vector));
  EXPECT_FALSE(vector.IsEqual(*copy));

  for (int i = 1; i <= 100; ++i) longer.AddValue(S::a);
  unwritten.LetSize(100);
  longer.CopyFrom(unwritten);  // slots that take no memory copy as the zeros that they are
  EXPECT_TRUE(longer.IsEqual(unwritten));
  EXPECT_EQ(longer.Value(100), typename TypeParam::Type{});

  vector.SetFromArray({-3, {typename TypeParam::Type(S::b), typename TypeParam::Type(S::a)}});
  EXPECT_EQ(vector.Size(), 2);
  EXPECT_EQ(vector.Value(1), S::b);
  EXPECT_EQ(ErrorOf([&] { vector.SetFromArray({}); }), kSubscript);
}

TYPED_TEST(EveryVector, SavesTheGoldenBytesAndLoadsThem) {
  using S = Samples<TypeParam>;
  TypeParam vector, loaded;
  Set(vector, S::Golden());
  CBuffer buffer;
  buffer.AddLong(1);  // gone unless the record is appended
  vector.SaveToBuffer(&buffer);
  const std::string golden = ReadTestFile(std::string("golden/") + S::golden);
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));

  loaded.LoadFromBuffer(&buffer);
  EXPECT_TRUE(loaded.IsEqual(vector)) << Shown(loaded);
  vector.SaveToBuffer(&buffer, true);
  loaded.LetSize(0);
  buffer.ResetPos();
  loaded.LoadFromBuffer(&buffer, true);
  loaded.LoadFromBuffer(&buffer, true);  // the second record
  EXPECT_EQ(buffer.NextTag(), u"");
  loaded.SaveToBuffer(nullptr);
  loaded.LoadFromBuffer(nullptr);
  EXPECT_TRUE(loaded.IsEqual(vector));

  buffer.Clear();
  buffer.AddTag(u"");
  buffer.AddString(u"");
  EXPECT_EQ(ErrorOf([&] { loaded.LoadFromBuffer(&buffer); }), NumberOf(BuiltInError::InvVarType));
}

// The capacity, as `Value` shows it.
template <class Vector>
void ExpectCapacity(const Vector& pVector, std::int32_t pCapacity) {
  EXPECT_EQ(ErrorOf([&] { pVector.Value(pCapacity); }), 0) << pCapacity;
  if (pCapacity == kMost) return;
  EXPECT_EQ(ErrorOf([&] { pVector.Value(pCapacity + 1); }), kSubscript) << pCapacity;
}

TEST(CDblVector, KeepsItsSlotsInBlocks) {
  // Slots that were never written take no memory. One block before and after: nothing happens.
  const struct {
    std::int32_t blockSize, size, error, capacity;
  } rows[] = {
      {16, 16, 0, 16},
      {16, 17, 0, 32},
      {16, -5, 0, 16},
      {16, kLeast, kOverflow, 16},
      {1, kMost, 0, kMost},
      {10, 5, 0, 16},
      {10, 12, 0, 20},
      {1 << 30, (1 << 30) + 1, kOverflow, 1 << 30},
      {0, 1, kDivisionByZero, 16},
      {-4, 1, kSubscript, 16},
      {16, 524'288, 0, 524'288},
  };
  for (const auto& row : rows) {
    CDblVector vector;
    const bool valid = row.blockSize > 0;
    EXPECT_EQ(ErrorOf([&] { vector.LetBlockSize(row.blockSize); }), valid ? 0 : row.error);
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
  vector.SetFromString(u"4;5;6");  // as many slots as there are take their pieces
  EXPECT_EQ(Shown(vector), "(4;5;6)");
  EXPECT_EQ(ErrorOf([&] { vector.LetSize(kMost); }), kOverflow);
  EXPECT_EQ(ErrorOf([&] { vector.AddValue(3); }), kOverflow);  // the size itself
  EXPECT_EQ(ErrorOf([&] { vector.Sort(); }), kSubscript);      // elements without slots
}

TEST(CDblVector, ShowsWhatSlotsHeldBefore) {
  CDblVector vector;
  Set(vector, {1, 2, 3});
  vector.LetValue(5, 5);
  vector.LetSize(5);
  EXPECT_EQ(Shown(vector), "(1;2;3;0;5)");
  vector.DeleteValue(4);
  EXPECT_EQ(vector.Value(5), 5);
  vector.LetSize(17);
  vector.LetValue(17, 17);
  vector.LetSize(16);  // the second block is forgotten
  vector.LetSize(17);
  EXPECT_EQ(vector.Value(17), 0);
  vector.LetSize(-1);
  EXPECT_EQ(Shown(vector), "()");
  EXPECT_EQ(ErrorOf([&] { vector.AddValue(1); }), kSubscript);  // no slot 0
  EXPECT_EQ(vector.Size(), 0);
  vector.DeleteValue(1);
  EXPECT_EQ(vector.Size(), -1);
}

TEST(CDblVector, FindsTheClosestElement) {
  const struct {
    std::vector<double> values;
    double value;
    std::int32_t start, end, closest, left, right;  // 0: error 9
  } rows[] = {
      {{1, 2, 3, 2.4}, 2.4, 1, 0, 4, 4, 3},
      {{1, 3}, 2, 1, 0, 1, 1, 2},
      {{1, 2}, 0, 1, 0, 1, 1, 1},
      {{1, 2, 3, 4}, 4, 1, 3, 3, 4, 4},
      {{4, 2, 3, 4}, 4, 2, 1, 4, 4, 1},
      {{4, 2, 3, 4}, 4, 2, 2, 4, 4, 1},
      {{1, 2}, 2, 20, 0, 0, 2, 2},
      {{1, 2}, 0.4, 16, 0, 16, 1, 1},  // a slot behind the elements
      {{1, 2}, 5, 1, 17, 0, 2, 2},
      {{}, 1, 1, 0, 1, 0, 1},
      {{kInvalidDouble, 5}, -1e300, 1, 0, 2, 1, 2},
      {{std::numeric_limits<double>::quiet_NaN(), 5}, 5, 1, 17, 1, 2, 1},  // nothing is nearer than not-a-number
  };
  for (const auto& row : rows) {
    CDblVector vector;
    Set(vector, row.values);
    const auto check = [&](std::int32_t pExpected, auto pCall) {
      std::int32_t actual = 0;
      EXPECT_EQ(ErrorOf([&] { actual = pCall(); }), pExpected == 0 ? kSubscript : 0) << &row - rows;
      EXPECT_EQ(actual, pExpected) << &row - rows;
    };
    check(row.closest, [&] { return vector.ClosestIndex(row.value, row.start, row.end); });
    check(row.left, [&] { return vector.ClosestLeftIndex(row.value); });
    check(row.right, [&] { return vector.ClosestRightIndex(row.value); });
  }
}

TEST(CDblVector, SkipsInvalidElements) {
  constexpr double kInvalid = kInvalidDouble;
  const struct {
    std::vector<double> values;
    double min, max, sum;
    std::int32_t valid;
  } rows[] = {
      {{}, 0, 0, 0, 0},
      {{kInvalid, 5, 2}, kInvalid, 5, 7, 2},
      {{5, kInvalid, 2}, 2, 5, 7, 2},
      {{kInvalid, kInvalid}, kInvalid, kInvalid, 0, 0},
  };
  CDblVector vector;
  for (const auto& row : rows) {
    Set(vector, row.values);
    EXPECT_EQ(vector.Min(), row.min);
    EXPECT_EQ(vector.Max(), row.max);
    EXPECT_EQ(vector.Sum(), row.sum);
    EXPECT_EQ(vector.NrValid(), row.valid);
  }
  vector.LetSize(0);
  vector.LetValue(1, 7);  // the first slot counts even without elements
  EXPECT_EQ(vector.Min(), 7);
  EXPECT_EQ(vector.Max(), 7);
  vector.InsertValue(1);
  EXPECT_EQ(vector.Value(1), kInvalid);
  EXPECT_EQ(ErrorOf([&] { Set(vector, {1e308, 1e308}).Sum(); }), kOverflow);
}

TEST(CLngVector, OverflowsInSumsAndDistances) {
  CLngVector vector;
  EXPECT_EQ(ErrorOf([&] { Set(vector, {kMost, 1, -1}).Sum(); }), kOverflow);
  EXPECT_EQ(Set(vector, {kMost, kInvalidLong, -1}).Sum(), kMost - 1);
  EXPECT_EQ(ErrorOf([&] { Set(vector, {kLeast}).ClosestIndex(0); }), kOverflow);
  EXPECT_EQ(ErrorOf([&] { Set(vector, {-2}).ClosestIndex(kMost); }), kOverflow);
  EXPECT_EQ(Set(vector, {kLeast + 1, 3, 5}).ClosestIndex(0), 2.0);
  static_assert(std::same_as<decltype(vector.ClosestIndex(0)), double>);
  Set(vector, {3, -1, 3, 2}).Sort(false);
  EXPECT_EQ(Shown(vector), "(3;3;2;-1)");
  EXPECT_EQ(vector.VarType(), EVTDouble);
  vector.InsertValue(2);
  EXPECT_EQ(vector.Value(2), kInvalidLong);
  EXPECT_EQ(vector.NrValid(), 4);
}

TEST(CStrVector, ComparesTextsIgnoringCase) {
  const ScopedLocale locale(TestLocale("en-US"));
  CStrVector vector, other;
  Set(vector, {u"Alpha", u"~", u"beta"});
  EXPECT_EQ(vector.Index(u"BETA"), 3);
  EXPECT_EQ(vector.NrValid(), 2);
  vector.AddUniqueValue(u"ALPHA");
  vector.AddUniqueValue(u"gamma");
  EXPECT_EQ(Shown(vector), "(Alpha;~;beta;gamma)");
  EXPECT_TRUE(Set(other, {u"alpha", u"~", u"BETA", u"Gamma"}).IsEqual(vector));
  EXPECT_FALSE(Set(other, {u"alpha", u"~", u"BETA", u"delta"}).IsEqual(vector));
  vector.InsertValue(1);
  EXPECT_EQ(vector.Value(1), u"~");
}

TEST(CStrVector, TakesTextsOutOfItsOwnSlots) {
  constexpr std::u16string_view kLong = u"longer than a text that needs no memory;2";
  CStrVector vector;
  Set(vector, {u"a", std::u16string(kLong)});
  vector.InsertValue(1, vector.Value(2));
  for (int i = 0; i < 40; ++i) vector.AddValue(vector.Value(1));  // moves the slots
  EXPECT_EQ(vector.Value(1), kLong);
  EXPECT_EQ(vector.Value(2), u"a");
  EXPECT_EQ(vector.Value(43), kLong);
  vector.SetFromString(vector.Value(1));
  EXPECT_EQ(Shown(vector), "(longer than a text that needs no memory;2)");
}

TEST(Vectors, RaiseOutOfMemory) {
  CDblVector vector;
  vector.LetBlockSize(1 << 30);
  CStrVector texts;
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
  EXPECT_EQ(vector.Size(), 20'000);
  EXPECT_EQ(vector.Sum(), 12'500);  // those for which there is memory
}

// Three stale elements, then the text.
template <class Vector>
std::string Read(const char* pText, typename Vector::Type pStale) {
  Vector vector;
  Set(vector, {pStale, pStale, pStale}).SetFromString(FromUtf8(pText));
  return Shown(vector);
}

TEST(Vectors, ReadTextsOfTheLocale) {
  const struct {
    const char *text, *doubles, *longs, *booleans, *texts;
  } rows[] = {
      {"", "()", "()", "()", "()"},
      {"(", "()", "()", "()", "()"},
      {"1;2", "(1;2)", "(1;2)", "(True;True)", "(1;2)"},
      {"(1,5;x;0)", "(1,5;9;0)", "(2;9;0)", "(True;True;False)", "(1,5;x;0)"},
      {"({1;2})", "(1;2)", "(1;2)", "(True;True)", "(1;2)"},
      {"(1;2]", "(1;2)", "(1;2)", "(True;True)", "(1;2)"},
      {"False;true;1e999", "(9;9;9)", "(9;9;9)", "(False;True;True)", "(False;true;1e999)"},
      {";;", "(9;9;9)", "(9;9;9)", "(True;True;True)", "(;;)"},
  };
  const ScopedLocale locale(TestLocale("de-DE"));
  for (const auto& row : rows) {
    EXPECT_EQ(Read<CDblVector>(row.text, 9), row.doubles) << row.text;
    EXPECT_EQ(Read<CLngVector>(row.text, 9), row.longs) << row.text;
    EXPECT_EQ(Read<CBoolVector>(row.text, true), row.booleans) << row.text;
    EXPECT_EQ(Read<CStrVector>(row.text, u"9"), row.texts) << row.text;
  }
}

}  // namespace
}  // namespace qzbase::tests
