#include <gtest/gtest.h>

#include "qzbase/data/CVector.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

Ref<CVector> VectorOf(QZVarType pType, const std::vector<Variant>& pValues) {
  auto vector = New<CVector>();
  vector->LetVarType(pType);
  for (const Variant& value : pValues) vector->AddValue(value);
  return vector;
}

TEST(CVector, CutsItsSlotsWhenOneIsInserted) {
  CVector vector;
  vector.LetValue(16, u"forgotten");
  const std::size_t before = RequestedBytes();
  for (int i = 0; i < 20'000; ++i) vector.InsertValue(0);
  EXPECT_LT(RequestedBytes() - before, std::size_t{8} * 1024 * 1024);  // though every one cuts, memory doubles
  EXPECT_EQ(ErrorOf([&] { vector.Value(20'001); }), kSubscript);
  EXPECT_EQ(ToDouble(vector.Value(20'000)), kInvalidDouble);
  vector.LetSize(32'768 * 16);
  EXPECT_EQ(ErrorOf([&] { vector.AddValue(1); }), kOverflow);
}

// The golden file has them all, one behind the other. The last two cannot be read back.
TEST(CVector, SavesItsElementsByTheDeclaredType) {
  const struct {
    QZVarType type;
    std::vector<Variant> values;
    const char* loaded;
    VariantKind kind;
  } rows[] = {
      {EVTBoolean, {true, 0, u"True"}, "(True;False;True)", VariantKind::Boolean},
      {EVTDouble, {1.5, 2, u"2,5", Variant()}, "(1,5;2;2,5;0)", VariantKind::Double},
      {EVTLong, {2.5, std::int16_t{3}, true}, "(2;3;-1)", VariantKind::Long},
      {EVTString, {u"a;\u00C4\u4E2D", 2.5, false}, "(a;\u00C4\u4E2D;2,5;False)", VariantKind::String},
      {EVTDate, {Date{2.5}, 3}, "(1.1.1900 12:00:00;2.1.1900)", VariantKind::Date},
      {EVTEnum, {u"7"}, "(7)", VariantKind::Long},
      {EVTObject, {1, Variant(nullptr)}, "(;)", VariantKind::Empty},
      {QZVarType(99), {1}, "()", VariantKind::Empty},
      {EVTInvalid, {7, u"x", Date{2}, Null(), 1.5f}, nullptr, VariantKind::Empty},
      {EVTColor, {255}, nullptr, VariantKind::Empty},
  };
  const ScopedLocale locale(TestLocale("de-DE"));
  CBuffer buffer;
  for (const auto& row : rows) VectorOf(row.type, row.values)->SaveToBuffer(&buffer, true);
  const std::string golden = ReadTestFile("golden/CVector.bin");
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));
  for (const auto& row : rows) {
    VectorOf(row.type, row.values)->SaveToBuffer(&buffer);
    const auto loaded = VectorOf(row.type, {});
    EXPECT_EQ(ErrorOf([&] { loaded->LoadFromBuffer(&buffer); }), row.loaded ? 0 : NumberOf(BuiltInError::InvVarType));
    if (!row.loaded) continue;
    EXPECT_EQ(ToUtf8(loaded->GetString()), row.loaded);
    EXPECT_EQ(loaded->Value(1).Kind(), row.kind);
  }
  EXPECT_EQ(ErrorOf([&] { VectorOf(EVTLong, {u"x"})->SaveToBuffer(&buffer); }), kTypeMismatch);
  EXPECT_EQ(ErrorOf([&] { VectorOf(EVTLong, {u"x"})->SaveToBuffer(nullptr); }), 0);

  // Elements without bytes: any number of them loads.
  for (const QZVarType type : {EVTObject, QZVarType(99)}) {
    const auto list = VectorOf(type, {});
    list->LetSize(70'000);
    list->SaveToBuffer(&buffer);
    const auto loaded = VectorOf(type, {1, 2});
    loaded->LoadFromBuffer(&buffer);
    EXPECT_EQ(loaded->Size(), 70'000);
    EXPECT_EQ(ToLong(loaded->Value(2)), 2);
  }
}

}  // namespace
}  // namespace qzbase::tests
