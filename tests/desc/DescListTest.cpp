#include <gtest/gtest.h>

#include "qzbase/desc/CTypedInfo.h"
#include "qzbase/desc/CVarDescs.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

constexpr std::int32_t kNotSet = NumberOf(runtime::RuntimeError::ObjectNotSet);

void ExpectGolden(const CBuffer& pBuffer, const std::string& pName) {
  const std::string golden = ReadTestFile("golden/" + pName + ".bin");
  EXPECT_EQ(pBuffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));
}

// Descriptors with IDs of one letter each.
template <class List>
Ref<List> ListOf(std::u16string_view pIDs) {
  auto list = New<List>();
  for (const char16_t id : pIDs) {
    typename List::Element desc;
    desc.LetID({&id, 1});
    list->AddDesc(desc);
  }
  return list;
}

// The IDs: "-" for an empty one, "0" for a slot that holds none.
template <class List>
std::string Shown(const List& pList) {
  std::u16string text;
  for (std::int32_t i = 1; i <= pList.Size(); ++i) {
    const auto& desc = pList.DescRef(i);
    text += !desc ? u"0" : desc->ID().empty() ? u"-" : desc->ID();
  }
  return ToUtf8(text);
}

template <class List>
struct EveryDescList : testing::Test {};
using AllLists = testing::Types<CVarDescs, CEntryDescs>;
TYPED_TEST_SUITE(EveryDescList, AllLists);

TYPED_TEST(EveryDescList, ChangesItsSlots) {
  using L = TypeParam;
  const struct {
    const char16_t* before;
    void (*change)(L&);
    const char* after;
    std::int32_t error;
  } rows[] = {
      {u"AB", [](L& l) { EXPECT_EQ(l.InsertDesc(*l.DescRef(2), 1), 1); }, "BAB", 0},
      {u"AB", [](L& l) { EXPECT_EQ(l.InsertDesc(*l.DescRef(1), 99), 3); }, "ABA", 0},
      {u"ABC", [](L& l) { l.DeleteDesc(5); }, "AB", 0},
      {u"ABC", [](L& l) { l.DeleteDesc(0); }, "ABC", kSubscript},
      {u"ABC", [](L& l) { l.MoveDesc(1, 3); }, "BCC", 0},
      {u"ABC", [](L& l) { l.MoveDesc(3, 1); }, "CCC", 0},
      {u"ABC", [](L& l) { l.MoveDesc(4, 1); }, "ABC", kSubscript},
      {u"ABC", [](L& l) { l.MoveDesc(2, 0); }, "BBC", kSubscript},
      {u"ABC", [](L& l) { l.LetSize(0), l.LetSize(2); }, "--", 0},
      {u"ABC", [](L& l) { l.SetDesc(2, nullptr), l.Index(u"C"); }, "A0C", kNotSet},
      {u"ABC", [](L& l) { l.SetDesc(2, nullptr), l.LetSize(4); }, "A-C-", 0},
      {u"A", [](L& l) { l.DeleteDesc(1), l.Desc(1); }, "", kNotSet},  // slot 1 stays
      {u"A", [](L& l) { l.LetSize(-1), l.AddDesc({}); }, "", kSubscript},
  };
  for (const auto& row : rows) {
    const auto list = ListOf<L>(row.before);
    EXPECT_EQ(ErrorOf([&] { row.change(*list); }), row.error) << &row - rows;
    EXPECT_EQ(Shown(*list), row.after) << &row - rows;
  }
}

TYPED_TEST(EveryDescList, TellsObjectsFromCopies) {
  const auto list = ListOf<TypeParam>(u"abB");
  const auto stored = list->DescRef(2);
  EXPECT_EQ(list->Index(u"B"), 2);
  list->Desc(2)->LetID(u"x");
  list->LetDesc(1, *stored);
  list->SetDesc(3, stored);
  stored->LetID(u"y");
  EXPECT_EQ(Shown(*list), "byy");
  const auto copy = list->GetCopy();
  EXPECT_TRUE(copy->IsEqual(*list));
  copy->At(3).LetID(u"z");
  EXPECT_EQ(Shown(*copy) + Shown(*list), "byzbyy");
  EXPECT_FALSE(copy->IsEqual(*list));
  copy->SetDesc(1, stored);
  copy->CopyFrom(*list);  // the first copy changes the source's other descriptors
  EXPECT_EQ(Shown(*copy) + Shown(*list), "bbbbbb");
}

TYPED_TEST(EveryDescList, SavesTheGoldenBytesAndLoadsThem) {
  const auto list = ListOf<TypeParam>(u"Ln");
  list->DescRef(1)->LetVarType(EVTDouble);
  list->DescRef(2)->LetVarType(EVTLong);
  CBuffer buffer;
  list->SaveToBuffer(&buffer);
  ExpectGolden(buffer, std::is_same_v<TypeParam, CVarDescs> ? "CVarDescs" : "CEntryDescs");
  TypeParam loaded;
  loaded.LoadFromBuffer(&buffer);
  EXPECT_TRUE(loaded.IsEqual(*list));
  EXPECT_EQ(loaded.GetString(), u"(" + list->At(1).GetString() + u");(" + list->At(2).GetString() + u")");

  // A list that is loaded in part has its new size, and a count that no file can have is refused.
  const std::pair<std::int32_t, std::int32_t> rows[] = {{3, NumberOf(BuiltInError::InvVarType)}, {65536, kOutOfMemory}};
  for (const auto& [count, error] : rows) {
    buffer.Clear();
    buffer.AddTag(u"");
    buffer.AddLong(count);
    buffer.AddDouble(1);
    EXPECT_EQ(ErrorOf([&] { loaded.LoadFromBuffer(&buffer); }), error);
    EXPECT_EQ(Shown(loaded), "Ln-");
  }
}

// Infos of one letter each, whose values are 1, 2, ...
Ref<CTypedInfo> Numbered(std::u16string_view pIDs) {
  auto info = New<CTypedInfo>();
  info->SetupFrom(*ListOf<CEntryDescs>(pIDs));
  for (std::int32_t i = 1; i <= info->NrInfos(); ++i) info->LetValue(i, i);
  return info;
}

TEST(CTypedInfo, KeepsValuesBesideDescriptors) {
  using I = CTypedInfo;
  const struct {
    void (*change)(I&);  // of A = 1, B = 2, C = 3
    const char* after;
    std::int32_t error;
  } rows[] = {
      {[](I& i) { i.SetValue(u"b", i.GetValue(u"x")); }, "A;B;C;\n1;;3;", 0},
      {[](I& i) { i.SetValue(u"x", 9); }, "A;B;C;\n1;2;3;", kSubscript},
      {[](I& i) { i.AddInfo(*i.DescRef(1), i.Value(2)); }, "A;B;C;A;\n1;2;3;2;", 0},
      {[](I& i) { i.DeleteInfo(1); }, "B;C;\n2;3;", 0},
      {[](I& i) { i.DeleteInfo(9); }, "A;B;\n1;2;", 0},
      {[](I& i) { i.DeleteInfo(0); }, "A;B;C;\n1;2;3;", kSubscript},
      {[](I& i) { i.Clear(), i.DeleteInfo(0); }, "\n", 0},
      {[](I& i) { i.LetNrInfos(0), i.LetNrInfos(2); }, ";;\n1;;", 0},  // slot 1 stays
      {[](I& i) { i.SetupFrom(*i.DescsRef()); }, "A;B;C;\n;;;", 0},
      {[](I& i) { i.UpdateFrom(*Numbered(u"Xbcc")); }, "A;B;C;\n1;2;4;", 0},
  };
  for (const auto& row : rows) {
    const auto info = Numbered(u"ABC");
    EXPECT_EQ(ErrorOf([&] { row.change(*info); }), row.error) << &row - rows;
    EXPECT_EQ(ToUtf8(info->GetString()), row.after) << &row - rows;
  }
  EXPECT_EQ(CTypedInfo().GetValue(u"x").Kind(), runtime::VariantKind::String);  // and not empty
}

TEST(CTypedInfo, SavesTheGoldenBytesAndLoadsThem) {
  const runtime::ScopedLocale locale(TestLocale("de-DE"));
  const auto info = Numbered(u"nod");
  info->DescRef(1)->LetVarType(EVTLong);
  info->DescRef(2)->LetVarType(EVTObject);  // writes nothing
  info->DescRef(3)->LetVarType(EVTDouble);
  info->LetValue(1, 2.7);
  info->LetValue(3, u"1,5");
  CBuffer buffer;
  info->SaveToBuffer(&buffer);
  ExpectGolden(buffer, "CTypedInfo");
  CTypedInfo loaded;
  loaded.LoadFromBuffer(&buffer);
  EXPECT_EQ(ToUtf8(loaded.GetString()), "n;o;d;\n3;;1,5;");
  EXPECT_FALSE(loaded.IsEqual(*info));
  info->CopyFrom(loaded);
  EXPECT_TRUE(loaded.IsEqual(*info));
}

}  // namespace
}  // namespace qzbase::tests
