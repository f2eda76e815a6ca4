// Sizes that are numbers and nothing more: what can be said about elements that were never written is said at once, and
// what has no room is refused at once. Each call may ask for a megabyte.
#include <concepts>
#include <functional>
#include <tuple>

#include <gtest/gtest.h>

#include "qzbase/data/CBoolVector.h"
#include "qzbase/data/CDblMatrix.h"
#include "qzbase/data/CDblVectors.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CMatrix.h"
#include "qzbase/data/CObjVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/data/CTable.h"
#include "qzbase/layout/CLayoutGraph.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Variant;

constexpr std::int32_t kHuge = 2'000'000'000;

std::int32_t ErrorInAMegabyte(const std::function<void()>& pCall) {
  const std::size_t before = RequestedBytes();
  const std::int32_t error = ErrorOf(pCall);
  EXPECT_LT(RequestedBytes() - before, std::size_t{1024} * 1024);
  return error;
}

template <class Vector>
Ref<Vector> Huge(std::int32_t pSize = kHuge) {
  auto vector = New<Vector>();
  if constexpr (requires { vector->LetBlockSize(kHuge); }) vector->LetBlockSize(kHuge);
  if constexpr (std::same_as<Vector, CVector>) vector->LetVarType(EVTLong);
  vector->LetSize(pSize);
  return vector;
}

template <class Vector>
struct HugeVector : testing::Test {};
using AllVectors = testing::Types<CDblVector, CLngVector, CStrVector, CBoolVector, CVector>;
TYPED_TEST_SUITE(HugeVector, AllVectors);

// Three slots take memory, the third one for a zero.
TYPED_TEST(HugeVector, IsReadComparedAndRefusedAtOnce) {
  using Type = typename TypeParam::Type;
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  const Type zero{}, one = std::get<Type>(std::tuple(1.0, 1, std::u16string(u"1"), true, Variant(1)));
  const auto vector = Huge<TypeParam>(), other = Huge<TypeParam>();
  CBuffer buffer;
  EXPECT_EQ(ErrorInAMegabyte([&] {
              for (const std::int32_t i : {1, 2}) vector->LetValue(i, one);
              vector->LetValue(3, zero);
              EXPECT_EQ(vector->Index(zero), 3);
              EXPECT_EQ(vector->Index(zero, 9), 9);
              EXPECT_EQ(vector->Index(one, 3), -1);
              EXPECT_FALSE(vector->IsEqual(*other));
              EXPECT_TRUE(vector->GetCopy()->IsEqual(*vector));
              vector->DeleteValue(2);  // one zero
              vector->DeleteValue(kHuge - 9);
              EXPECT_EQ(vector->Size(), kHuge - 2);
              other->CopyFrom(*vector);
              EXPECT_TRUE(vector->IsEqual(*other));
              EXPECT_EQ(other->Index(zero), 2);
              EXPECT_EQ(other->Index(one), 1);
            }),
            0);
  EXPECT_EQ(ErrorInAMegabyte([&] { vector->GetString(); }), kOutOfMemory);
  EXPECT_EQ(ErrorInAMegabyte([&] { vector->SaveToBuffer(&buffer); }), kOverflow);
  if constexpr (std::same_as<Type, bool>) return;  // eight of them are a byte
  EXPECT_EQ(ErrorInAMegabyte([&] { vector->LetValue(kHuge - 5, one); }), kOutOfMemory);
  if constexpr (requires { vector->GetArray(); }) {
    EXPECT_EQ(ErrorInAMegabyte([&] { vector->GetArray(); }), kOutOfMemory);
  }
}

TEST(HugeCounts, TakeTheTimeAndMemoryOfWhatWasWritten) {
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  const auto doubles = Huge<CDblVector>();
  EXPECT_EQ(ErrorInAMegabyte([&] {
              doubles->LetValue(1, -1);
              doubles->LetValue(2, -3);
              EXPECT_EQ(doubles->Sum(), -4);
              EXPECT_EQ(doubles->Min(), -3);
              EXPECT_EQ(doubles->Max(), 0);
              EXPECT_EQ(doubles->NrValid(), kHuge);
              EXPECT_EQ(doubles->ClosestIndex(0.5), 3);
              EXPECT_EQ(doubles->ClosestLeftIndex(-1), 2);
              EXPECT_EQ(doubles->ClosestRightIndex(1), kHuge);
              doubles->Sort();
              EXPECT_EQ(doubles->Value(1), -3);
              for (int i = 0; i < 2; ++i) doubles->DeleteValue(1);
              doubles->LetBlockSize(1);
              doubles->InsertValue(1, 5);
              EXPECT_EQ(doubles->Value(1), 5);
            }),
            0);
  EXPECT_EQ(ErrorInAMegabyte([&] { doubles->Sort(); }), kOutOfMemory);  // the 5 goes behind all zeros
  const auto booleans = Huge<CBoolVector>(700'000'000);
  const auto objects = Huge<CObjVector>();
  const auto empty = Huge<CVector>();
  empty->LetVarType(EVTInvalid);
  CBuffer buffer;
  CLayoutGraph graph;
  graph.LetNrCurveStyles(500'000'000);
  CDblMatrix wide;
  wide.LetNrCols(kHuge);
  const std::pair<std::function<void()>, std::int32_t> rows[] = {
      {[&] { booleans->SaveToBuffer(&buffer); }, kOutOfMemory},
      {[&] { empty->SaveToBuffer(&buffer); }, 0},  // of no type: empty elements have no bytes
      {[&] { Huge<CStrVector>()->Sort(); }, kTypeMismatch},
      {[&] { empty->Sort(), empty->IsEqual(*empty); }, 0},
      {[&] { objects->GetUniqueKey(u""), objects->KeyVec(), objects->Index(u"x"); }, 0},
      {[&] { graph.SaveToBuffer(&buffer); }, kOverflow},
      {[&] { graph.LetCurveStyle(500'000'000, {}); }, kOutOfMemory},
      {[&] { graph.LetCurveStyle(2, {}), graph.GetCopy()->IsEqual(graph); }, 0},
      {[&] { CDblVectors().LetSize(kHuge); }, kOutOfMemory},
      {[&] { CEntryDescs().LetSize(kHuge); }, kOutOfMemory},
      {[&] { CMatrix().LetNrRows(kHuge); }, kOutOfMemory},
      {[&] { wide.LetNrRows(3), wide.Sort(kHuge), wide.LetRow(1, *wide.RowRef(2)), wide.GetCopy()->IsEqual(wide); }, 0},
      {[&] { CEntryData().CopyFromValues(wide); }, kOutOfMemory},
  };
  for (const auto& row : rows) EXPECT_EQ(ErrorInAMegabyte(row.first), row.second) << &row - rows;
  EXPECT_EQ(CDblVectors().Size(), 0);
}

TEST(HugeCounts, OfRowsLoadAndStayWithinTheMemoryOfTheCells) {
  CBuffer buffer, saved;
  buffer.AddTag(u"Table#1");
  buffer.AddString(u"t");
  buffer.AddTag(u"DV#1");
  buffer.AddLong(0);
  buffer.AddTag(u"\\DV");
  buffer.AddTag(u"EntryData#1");
  buffer.AddLong(0);
  buffer.AddLong(1'000'000'000);
  CTable table, other;
  bool equal = false;
  const auto desc = New<TEntryDesc>();
  desc->LetVarType(EVTDouble);
  const std::pair<std::function<void()>, std::int32_t> rows[] = {
      {[&] { table.LoadFromBuffer(&buffer), other.LoadFromBuffer(&buffer); }, 0},
      {[&] { table.GetString(); }, kOutOfMemory},
      {[&] { table.InsertRow(1), table.DeleteRow(1); }, 0},
      {[&] { table.SaveToBuffer(&saved); }, 0},
      {[&] { table.AddCol(desc), other.AddCol(desc); }, 0},
      {[&] { table.SaveToBuffer(&saved); }, kOverflow},
      {[&] { table.GetString(); }, kOutOfMemory},
      {[&] { table.LetValue(1, 1, -1.0), other.CopyFrom(table); }, 0},
      {[&] { table.Sort(1), equal = other.IsEqual(table); }, 0},
      {[&] { table.LetValue(1, 1, 1), table.Sort(1); }, kOutOfMemory},
      {[&] { table.ColRef(1)->LetBlockSize(1), table.InsertRow(1); }, 0},
      {[&] { table.AddRow(); }, kOutOfMemory},  // the invalid value at the far end
      {[&] { table.LetNrCols(kHuge); }, kOutOfMemory},
  };
  for (const auto& row : rows) EXPECT_EQ(ErrorInAMegabyte(row.first), row.second) << &row - rows;
  EXPECT_TRUE(equal);
}

}  // namespace
}  // namespace qzbase::tests
