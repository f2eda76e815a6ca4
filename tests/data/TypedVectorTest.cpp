#include <limits>

#include <gtest/gtest.h>

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CStrVector.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

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

}  // namespace
}  // namespace qzbase::tests
