#include <gtest/gtest.h>

#include "qzbase/desc/CEntryDescs.h"
#include "qzbase/desc/CVarDescs.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

constexpr std::int32_t kNotSet = NumberOf(runtime::RuntimeError::ObjectNotSet);

template <class Element>
Ref<Element> NewDesc(std::u16string_view pID, QZVarType pType = EVTString) {
  auto desc = New<Element>();
  desc->LetID(pID);
  desc->LetVarType(pType);
  return desc;
}

// The IDs, each of one letter: "-" for an empty one, "0" for a slot that holds none.
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
struct NameOf {
  template <class List>
  static std::string GetName(int) {
    return std::is_same_v<List, CVarDescs> ? "CVarDescs" : "CEntryDescs";
  }
};
using AllLists = testing::Types<CVarDescs, CEntryDescs>;
TYPED_TEST_SUITE(EveryDescList, AllLists, NameOf);

TYPED_TEST(EveryDescList, ChangesItsSlots) {
  using List = TypeParam;
  using Element = typename List::Element;
  const struct {
    const char *before, *call;
    void (*change)(List&);
    const char* after;
    std::int32_t error;
  } rows[] = {
      {"AB", "add", [](List& l) { l.AddDesc(*NewDesc<Element>(u"x")); }, "ABx", 0},
      {"AB", "insert at 1", [](List& l) { EXPECT_EQ(l.InsertDesc(*NewDesc<Element>(u"x"), 1), 1); }, "xAB", 0},
      {"AB", "insert past the end", [](List& l) { EXPECT_EQ(l.InsertDesc(*l.DescRef(1), 99), 3); }, "ABA", 0},
      {"ABC", "delete 1", [](List& l) { l.DeleteDesc(1); }, "BC", 0},
      {"ABC", "delete past the end", [](List& l) { l.DeleteDesc(5); }, "AB", 0},
      {"ABC", "delete 0", [](List& l) { l.DeleteDesc(0); }, "ABC", kSubscript},
      {"", "delete in none", [](List& l) { l.DeleteDesc(0); }, "", 0},
      {"ABC", "move up", [](List& l) { l.MoveDesc(1, 3); }, "BCC", 0},
      {"ABC", "move down", [](List& l) { l.MoveDesc(3, 1); }, "CCC", 0},
      {"ABC", "stay, even outside", [](List& l) { l.MoveDesc(9, 9); }, "ABC", 0},
      {"ABC", "move from outside", [](List& l) { l.MoveDesc(4, 1); }, "ABC", kSubscript},
      {"ABC", "move to 0", [](List& l) { l.MoveDesc(2, 0); }, "BBC", kSubscript},
      {"ABC", "grow", [](List& l) { l.LetSize(5); }, "ABC--", 0},
      {"ABC", "empty and grow", [](List& l) { l.LetSize(0), l.LetSize(2); }, "--", 0},
      {"ABC", "set to nothing", [](List& l) { l.SetDesc(2, nullptr); }, "A0C", 0},
      {"ABC", "use nothing", [](List& l) { l.SetDesc(2, nullptr), l.Index(u"C"); }, "A0C", kNotSet},
      {"ABC", "fill what is nothing", [](List& l) { l.SetDesc(2, nullptr), l.LetSize(3); }, "A-C", 0},
      {"ABC", "set outside", [](List& l) { l.SetDesc(4, nullptr); }, "ABC", kSubscript},
      {"", "use slot 1 of none", [](List& l) { l.Desc(1); }, "", kNotSet},
      {"A", "use slot 1 after the last went", [](List& l) { l.DeleteDesc(1), l.Desc(1); }, "", kNotSet},
      {"", "slot 2 of none", [](List& l) { l.DescRef(2); }, "", kSubscript},
      {"A", "negative size", [](List& l) { l.LetSize(-2), l.AddDesc(Element()); }, "", kSubscript},
  };
  for (const auto& row : rows) {
    List list;
    for (const char* id = row.before; *id != '\0'; ++id)
      list.AddDesc(*NewDesc<Element>(std::u16string(1, static_cast<char16_t>(*id))));
    EXPECT_EQ(ErrorOf([&] { row.change(list); }), row.error) << row.call;
    EXPECT_EQ(Shown(list), row.after) << row.call;
  }
}

TYPED_TEST(EveryDescList, TellsObjectsFromCopies) {
  using Element = typename TypeParam::Element;
  TypeParam list;
  EXPECT_EQ(list.GetString(), u"");
  const auto desc = NewDesc<Element>(u"a");
  list.AddDesc(*desc);
  list.AddDesc(*desc);
  desc->LetID(u"B");
  EXPECT_EQ(Shown(list), "aa");
  list.SetDesc(2, desc);
  desc->LetUnit(u"mm");
  EXPECT_EQ(list.DescRef(2)->Unit(), u"mm");
  list.Desc(2)->LetUnit(u"m");
  list.LetDesc(1, *desc);
  desc->LetUnit(u"km");
  EXPECT_EQ(list.Desc(1)->Unit(), u"mm");
  EXPECT_EQ(list.Index(u"b"), 1);
  EXPECT_EQ(list.Index(u"c"), -1);
  EXPECT_EQ(list.GetString(), u"(" + list.At(1).GetString() + u");(" + desc->GetString() + u")");

  const auto copy = list.GetCopy();
  EXPECT_TRUE(copy->IsEqual(list));
  copy->CopyFrom(*copy);
  EXPECT_TRUE(list.IsEqual(*copy));
  copy->At(2).LetUnit(u"m");
  EXPECT_FALSE(copy->IsEqual(list));
  copy->SetDesc(1, desc);
  copy->CopyFrom(list);  // through the shared object, which is the source's second one
  EXPECT_EQ(desc->Unit(), u"mm");
  copy->LetSize(1);
  EXPECT_FALSE(copy->IsEqual(list));
}

TYPED_TEST(EveryDescList, SavesTheGoldenBytesAndLoadsThem) {
  using Element = typename TypeParam::Element;
  constexpr bool kOfEntries = std::is_same_v<TypeParam, CEntryDescs>;
  TypeParam list, loaded;
  list.AddDesc(*NewDesc<Element>(u"L", EVTDouble));
  list.AddDesc(*NewDesc<Element>(u"n", EVTLong));
  CBuffer buffer;
  list.SaveToBuffer(&buffer);
  const std::string golden = ReadTestFile(kOfEntries ? "golden/CEntryDescs.bin" : "golden/CVarDescs.bin");
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));
  loaded.LetSize(3);
  loaded.LoadFromBuffer(&buffer);
  EXPECT_TRUE(loaded.IsEqual(list));
  EXPECT_EQ(buffer.NextTag(), u"");

  TypeParam().SaveToBuffer(&buffer);
  EXPECT_EQ(ToUtf8(buffer.GetString()), kOfEntries ? "/DV#1;0;\\DV;" : "/VV#1;0;\\VV;");

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

}  // namespace
}  // namespace qzbase::tests
