#include <gtest/gtest.h>

#include "qzbase/desc/CTypedInfo.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Variant;

void Add(CTypedInfo& pInfo, std::u16string_view pID, QZVarType pType, Variant pValue) {
  TEntryDesc desc;
  desc.LetID(pID);
  desc.LetVarType(pType);
  pInfo.AddInfo(desc, std::move(pValue));
}

// Infos of one letter each, whose values are 1, 2, ...
Ref<CTypedInfo> Numbered(std::u16string_view pIDs) {
  auto info = New<CTypedInfo>();
  for (const char16_t id : pIDs) Add(*info, std::u16string(1, id), EVTLong, info->NrInfos() + 1);
  return info;
}

struct TypedInfo : testing::Test {
  runtime::ScopedLocale locale{TestLocale("de-DE")};
};

TEST_F(TypedInfo, KeepsValuesBesideDescriptors) {
  const struct {
    const char* call;
    void (*change)(CTypedInfo&);  // of A = 1, B = 2, C = 3
    const char* after;
    std::int32_t error;
  } rows[] = {
      {"set by ID", [](CTypedInfo& i) { i.SetValue(u"b", 2.5); }, "A;B;C;\n1;2,5;3;", 0},
      {"set an unknown ID", [](CTypedInfo& i) { i.SetValue(u"x", 9); }, "A;B;C;\n1;2;3;", kSubscript},
      {"let outside", [](CTypedInfo& i) { i.LetValue(4, 9); }, "A;B;C;\n1;2;3;", kSubscript},
      {"add one's own", [](CTypedInfo& i) { i.AddInfo(*i.DescRef(1), i.Value(2)); }, "A;B;C;A;\n1;2;3;2;", 0},
      {"delete", [](CTypedInfo& i) { i.DeleteInfo(1); }, "B;C;\n2;3;", 0},
      {"delete past the end", [](CTypedInfo& i) { i.DeleteInfo(9); }, "A;B;\n1;2;", 0},
      {"delete 0", [](CTypedInfo& i) { i.DeleteInfo(0); }, "A;B;C;\n1;2;3;", kSubscript},
      {"delete in none", [](CTypedInfo& i) { i.Clear(), i.DeleteInfo(0); }, "\n", 0},
      {"slot 1 of none", [](CTypedInfo& i) { i.LetNrInfos(0), i.LetNrInfos(2); }, ";;\n1;;", 0},
      {"slot 1 when cleared", [](CTypedInfo& i) { i.Clear(), i.LetNrInfos(1); }, ";\n;", 0},
      {"no value slot", [](CTypedInfo& i) { i.DescsRef()->LetSize(4), i.GetString(); }, nullptr, kSubscript},
      {"set up", [](CTypedInfo& i) { i.SetupFrom(*Numbered(u"XA")->DescsRef()); }, "X;A;\n;;", 0},
      {"set up from itself", [](CTypedInfo& i) { i.SetupFrom(*i.DescsRef()); }, "A;B;C;\n;;;", 0},
      {"update", [](CTypedInfo& i) { i.UpdateFrom(*Numbered(u"Xbcc")); }, "A;B;C;\n1;2;4;", 0},
      {"copy", [](CTypedInfo& i) { i.CopyFrom(*Numbered(u"XY")); }, "X;Y;\n1;2;", 0},
  };
  for (const auto& row : rows) {
    const auto info = Numbered(u"ABC");
    EXPECT_EQ(ErrorOf([&] { row.change(*info); }), row.error) << row.call;
    if (row.after == nullptr) continue;
    EXPECT_EQ(ToUtf8(info->GetString()), row.after) << row.call;
  }
  EXPECT_EQ(*Numbered(u"A")->GetValue(u"x").If<std::u16string>(), u"");
}

TEST_F(TypedInfo, ComparesDescriptorsAndValues) {
  const auto info = Numbered(u"AB");
  const auto copy = info->GetCopy();
  copy->LetValue(2, 2.0);
  EXPECT_TRUE(copy->IsEqual(*info));
  copy->LetValue(2, u"2");
  EXPECT_FALSE(copy->IsEqual(*info));
  copy->LetValue(2, 2);
  copy->DescRef(2)->LetUnit(u"m");
  EXPECT_FALSE(copy->IsEqual(*info));
  EXPECT_FALSE(Numbered(u"A")->IsEqual(*info));
}

TEST_F(TypedInfo, SavesTheGoldenBytesAndLoadsThem) {
  CTypedInfo info, loaded;
  Add(info, u"n", EVTLong, 2.7);
  Add(info, u"o", EVTObject, 1);  // writes nothing
  Add(info, u"d", EVTDouble, u"1,5");
  CBuffer buffer;
  info.SaveToBuffer(&buffer);
  const std::string golden = ReadTestFile("golden/CTypedInfo.bin");
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));
  loaded.LoadFromBuffer(&buffer);
  EXPECT_EQ(ToUtf8(loaded.GetString()), "n;o;d;\n3;;1,5;");
  EXPECT_EQ(*loaded.Value(1).If<std::int32_t>(), 3);
  EXPECT_EQ(buffer.NextTag(), u"");

  info.LetValue(1, u"x");
  EXPECT_EQ(ErrorOf([&] { info.SaveToBuffer(&buffer); }), kTypeMismatch);
  CTypedInfo().SaveToBuffer(&buffer);
  EXPECT_EQ(ToUtf8(buffer.GetString()), "/TypedInfo#1;\n/DV#1;0;\\DV;\\TypedInfo;");
}

}  // namespace
}  // namespace qzbase::tests
