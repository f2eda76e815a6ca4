#include <gtest/gtest.h>

#include "qzbase/data/CVector.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

Ref<CVector> VectorOf(QZVarType pType, const std::vector<Variant>& pValues) {
  auto vector = New<CVector>();
  vector->LetVarType(pType);
  vector->LetSize(static_cast<std::int32_t>(pValues.size()));
  for (std::size_t i = 0; i < pValues.size(); ++i) vector->LetValue(static_cast<std::int32_t>(i + 1), pValues[i]);
  return vector;
}

TEST(CVector, CutsItsSlotsWhenOneIsInserted) {
  CVector vector;
  vector.LetValue(16, u"kept until the cut");
  vector.InsertValue(1);
  EXPECT_EQ(ToDouble(vector.Value(1)), kInvalidDouble);
  EXPECT_EQ(ErrorOf([&] { vector.Value(2); }), kSubscript);
  vector.LetSize(2);
  EXPECT_TRUE(vector.Value(16).IsEmpty());
  vector.InsertValue(1, vector.Value(1));
  EXPECT_EQ(vector.Size(), 3);
  EXPECT_EQ(ErrorOf([&] { vector.Value(4); }), kSubscript);

  const std::size_t before = RequestedBytes();
  while (vector.Size() < 20'000) vector.AddValue(1);
  EXPECT_LT(RequestedBytes() - before, std::size_t{8} * 1024 * 1024);  // though every one cuts, memory doubles
  vector.LetSize(32'768 * 16);
  EXPECT_EQ(ErrorOf([&] { vector.AddValue(1); }), kOverflow);
  vector.LetBlockSize(1);
  vector.LetSize(-1);
  EXPECT_EQ(ErrorOf([&] { vector.AddValue(1); }), kSubscript);  // no slot 0
}

TEST(CVector, ComparesAsVariantsDo) {
  const ScopedLocale locale(TestLocale("de-DE"));
  const Variant object(New<CVector>());
  const auto list = VectorOf(EVTDouble, {Variant(), u"b", 2.5, std::int16_t{-1}, Null(), Date{7}, u"B", true});
  const struct {
    Variant value;
    std::int32_t index, error;
  } rows[] = {
      {0.0, 1, 0},
      {u"", 1, 0},
      {u"B", 7, 0},
      {2.5f, 3, 0},
      {u"2,5", -1, 0},
      {true, 4, 0},
      {7, 6, 0},
      {Null(), -1, 0},
      {object, 0, kTypeMismatch},
      {nullptr, 0, kTypeMismatch},
  };
  for (const auto& row : rows) {
    std::int32_t index = 0;
    EXPECT_EQ(ErrorOf([&] { index = list->Index(row.value); }), row.error) << CorpusValueText(row.value);
    EXPECT_EQ(index, row.index) << CorpusValueText(row.value);
  }
  EXPECT_EQ(NumberOf(RuntimeError::InvalidUseOfNull), ErrorOf([&] { list->GetString(); }));
  EXPECT_FALSE(list->IsEqual(*list));  // for the null
  list->DeleteValue(5);
  EXPECT_EQ(ToUtf8(list->GetString()), "(;b;2,5;-1;6.1.1900;B;True)");
  EXPECT_TRUE(list->IsEqual(*list->GetCopy()));
  const auto other = list->GetCopy();
  other->LetVarType(EVTLong);
  EXPECT_FALSE(list->IsEqual(*other));
  other->AddUniqueValue(u"B");
  EXPECT_EQ(other->Size(), 7);
  EXPECT_EQ(ErrorOf([&] { other->AddUniqueValue(object); }), kTypeMismatch);
}

// The golden file has them all, one behind the other. The last two cannot be read back.
const struct {
  QZVarType type;
  std::vector<Variant> values;
  const char* loaded;
  VariantKind kind;
} kRecords[] = {
    {EVTBoolean, {true, 0, u"True"}, "(True;False;True)", VariantKind::Boolean},
    {EVTDouble, {1.5, 2, u"2,5", Variant()}, "(1,5;2;2,5;0)", VariantKind::Double},
    {EVTLong, {2.5, std::int16_t{3}, true}, "(2;3;-1)", VariantKind::Long},
    {EVTString, {u"a;\u00C4\u4E2D", 2.5, false}, "(a;\u00C4\u4E2D;2,5;False)", VariantKind::String},
    {EVTDate, {Date{2.5}, 3}, "(1.1.1900 12:00:00;2.1.1900)", VariantKind::Date},
    {EVTEnum, {u"7"}, "(7)", VariantKind::Long},
    {EVTObject, {1, Variant(nullptr)}, "(;)", VariantKind::Empty},
    {QZVarType(99), {1}, "()", VariantKind::Empty},
    {EVTInvalid, {7, u"x", Date{2}, Null(), 1.5f}, "InvVarType", VariantKind::Empty},
    {EVTColor, {255}, "InvVarType", VariantKind::Empty},
};

std::string LoadedText(CBuffer& pBuffer, QZVarType pType, VariantKind pKind) {
  CVector vector;
  vector.LetVarType(pType);
  const std::int32_t error = ErrorOf([&] { vector.LoadFromBuffer(&pBuffer, true); });
  if (error != 0) return error == NumberOf(BuiltInError::InvVarType) ? "InvVarType" : "another error";
  for (const Variant& value : vector.Elements()) EXPECT_EQ(value.Kind(), pKind);
  return ToUtf8(vector.GetString());
}

TEST(CVector, SavesItsElementsByTheDeclaredType) {
  const ScopedLocale locale(TestLocale("de-DE"));
  CBuffer buffer;
  for (const auto& row : kRecords) VectorOf(row.type, row.values)->SaveToBuffer(&buffer, true);
  const std::string golden = ReadTestFile("golden/CVector.bin");
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));
  buffer.ResetPos();
  for (const auto& row : kRecords) {
    if (row.type == EVTColor) buffer.Clear(), VectorOf(row.type, row.values)->SaveToBuffer(&buffer), buffer.ResetPos();
    EXPECT_EQ(LoadedText(buffer, row.type, row.kind), row.loaded) << row.type;
  }
  buffer.LetByteArray(Storage(FromHex("03 26 A6 15 AB 00 01 00 00 00 03 07 00 00 00")));  // an old one, without markers
  buffer.ResetPos();
  EXPECT_EQ(LoadedText(buffer, EVTInvalid, VariantKind::Long), "(7)");
}

TEST(CVector, ConvertsEvenWithoutABuffer) {
  const struct {
    QZVarType type;
    Variant value;
    std::int32_t error;
  } rows[] = {
      {EVTDouble, u"x", kTypeMismatch},
      {EVTLong, 3e9, kOverflow},
      {EVTString, Null(), 94},
      {EVTDate, New<CVector>(), kTypeMismatch},
      {EVTBoolean, nullptr, 91},
      {EVTInvalid, New<CVector>(), 0},
      {EVTObject, u"x", 0},
  };
  for (const auto& row : rows) {
    CBuffer buffer;
    const auto vector = VectorOf(row.type, {row.value});
    EXPECT_EQ(ErrorOf([&] { vector->SaveToBuffer(&buffer); }), row.error) << row.type;
    EXPECT_EQ(ErrorOf([&] { vector->SaveToBuffer(nullptr); }), row.error) << row.type;
    vector->LoadFromBuffer(nullptr);
  }
}

}  // namespace
}  // namespace qzbase::tests
