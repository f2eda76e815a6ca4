#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/runtime/Locale.h"
#include "qzbase/text/RangeString.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Array;

class Ranges : public testing::Test {
  runtime::ScopedLocale locale_{TestLocale("en-US")};
};

TEST_F(Ranges, EnumerationsAreMadeAndRead) {
  const struct {
    const char16_t* range;
    std::vector<std::u16string> items;
  } rows[] = {{u"{a;B;;a}", {u"a", u"B", u"", u"a"}},
              {u"{a;}", {u"a", u""}},
              {u"a; b}", {u"a", u" b"}},  // either brace may be missing
              {u"{{a}}", {u"{a}"}},
              {u"{", {}},
              {u"{}", {}}};
  for (const auto& [range, items] : rows) {
    Array<std::u16string> read(7, {u"kept"});
    const auto expected = items.empty() ? read : Array<std::u16string>(1, items);
    EXPECT_EQ(ModString::ParseEnumRange(range, read), static_cast<std::int32_t>(items.size()));
    EXPECT_EQ(read, expected) << ToUtf8(range);
    for (std::int32_t i = 0; i <= read.Size() + 1; ++i)
      EXPECT_EQ(ModString::EnumVal(i, range), i >= 1 && i <= std::ssize(items) ? read[i] : u"") << ToUtf8(range) << i;
  }
  EXPECT_EQ(ModString::EnumOrd(u"a", rows[0].range), 1);
  EXPECT_EQ(ModString::EnumOrd(u"", rows[0].range), 3);
  EXPECT_EQ(ModString::EnumOrd(u"b", rows[0].range), -1);
  EXPECT_EQ(ModString::EnumOrd(u"", u"{}"), -1);

  EXPECT_EQ(ModString::MakeEnumRange(Array<std::u16string>(-3, {u"x", u"y;"}), u"none"), u"{none;x;y;}");
  for (const auto& empty : {Array<std::u16string>(1, 0), Array<std::u16string>()})
    EXPECT_EQ(ModString::MakeEnumRange(empty) + ModString::MakeEnumRange(empty, u"none"), u"{}{none}");
}

TEST_F(Ranges, NumbersAreListedForTheUserAndReadWithoutALocale) {
  Array<double> values(0, {1.5, -2, 1e20});
  EXPECT_EQ(ModString::MakeValueList(values), u"{1.5;-2;1E+20}");
  const runtime::ScopedLocale german(TestLocale("de-DE"));
  EXPECT_EQ(ModString::MakeValueList(values), u"{1,5;-2;1E+20}");
  EXPECT_EQ(ModString::ParseValueList(u"{1,5;2.5;x;}", values), 4);
  EXPECT_EQ(values, Array<double>(1, {1, 2.5, 0, 0}));
  EXPECT_EQ(ModString::ParseValueList(u"{}", values), 0);
  EXPECT_EQ(values, Array<double>(1, 1));
  EXPECT_EQ(ModString::MakeValueList({}), u"{}");
}

TEST_F(Ranges, KindsAndMembers) {
  const struct {
    const char16_t *value, *range;
    bool isMember, isList, isCombo;
  } rows[] = {{u"b", u"{a;B;c}", true, true, false}, {u"", u"{a;;c}", true, true, false},
              {u"", u"{a;c}", false, true, false},   {u"a;b", u"{a;b}", true, true, false},
              {u"a", u"{ab;*}", false, false, true}, {u"[0", u"{[0;*]}", true, false, false},
              {u"a", u"{a", false, false, false},    {u"", u"{", false, false, false},
              {u"", u"", false, false, false},       {u"", u"{}", true, true, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(ModString::IsMember(row.value, row.range), row.isMember) << ToUtf8(row.range);
    EXPECT_EQ(ModString::IsList(row.range), row.isList) << ToUtf8(row.range);
    EXPECT_EQ(ModString::IsCombo(row.range), row.isCombo) << ToUtf8(row.range);
  }
}

TEST_F(Ranges, Validity) {
  const runtime::ScopedLocale french(TestLocale("fr-FR"));  // ranges are the same in every locale
  for (const char16_t* range : {u"", u" ", u"*", u"  [0;10] ", u">=1.5", u"<>0", u"<-1e-3", u"[0;1;x]", u"{a;b}",
                                u"{1;2;5;*}", u"{a;}", u"{[0;1];[5;6];10}", u"{[0;1]}", u"{[0;1}", u"{a;;b", u"{"})
    EXPECT_EQ(ModString::CheckRangeStringValid(range), 0) << ToUtf8(range);
  for (const char16_t* range : {u"5",     u"=5",     u">",    u">=x",       u">= 5",      u">+1",        u"[10;0]",
                                u"[1;1]", u"[1]",    u"[1;2", u"[",         u"[0;E]",     u"[0;1E999]",  u"[0;1,5]",
                                u"{}",    u"{a;;b}", u"{;a}", u"{[0;1];x}", u"{[1;0];2}", u"{1;[2;3];*}"})
    EXPECT_EQ(ModString::CheckRangeStringValid(range), NumberOf(BuiltInError::InvRangeString)) << ToUtf8(range);
}

TEST_F(Ranges, InWords) {
  for (const auto& [range, words] : {std::pair(u"", u""),
                                     {u"*", u"allowed range *"},
                                     {u">=5", u"allowed range >=5"},
                                     {u"a;b", u"allowed range ab"},
                                     {u"{Low;High};", u"allowed range Low Or High"},
                                     {u"{[0;1];[5;6]}", u"allowed range 0 To 1 Or 5 To 6"}})
    EXPECT_EQ(ToUtf8(ModString::HumanReadable(range)), ToUtf8(words));
}

TEST_F(Ranges, NumbersInRangeAndOnTheGrid) {
  const struct {
    double value;
    const char16_t *range, *step;
    bool expected;
  } rows[] = {{7, u"", u"3", true},           {0, u"[0;1]", u"", true},      {1, u"[0;1]", u"0", true},
              {2, u"[0;1]", u"", false},      {0.3, u"[0;1]", u"0.1", true}, {0.35, u"[0;1]", u"0.1", false},
              {0, u"[1;2", u"", false},       {0, u"[0]", u"", false},       {1, u"[1;1;5]", u"", true},
              {0, u">=5", u"", true},         {5, u"*", u"", false},         {5, u"5x", u"2", true},
              {2.5, u"[0.5;4]", u"1", true},  {2, u"[0.5;4]", u"1", false},  {-3, u"[-5;0]", u"-2", true},
              {1e-20, u"[0;1]", u"1", false}, {3, u"[0;9]", u"2x", false},   {1234567.3, u"[0;9e9]", u"0.1", true},
              {1, u"[0;1E999]", u"", false},  {1, u"[0;1]", u"1E999", false}};
  for (const auto& row : rows)
    EXPECT_EQ(ModString::IsInRange(row.value, row.range, row.step), row.expected) << row.value << ToUtf8(row.range);
  EXPECT_EQ(ErrorOf([] { ModString::IsInRange(1, u"[0;1]", u"1E-320"); }), kOverflow);

  const std::size_t before = RequestedBytes();  // the tests that are made for every cell of a table
  EXPECT_TRUE(ModString::IsInRange(0.7, u"[0.1;1000000000]", u"0.1"));
  EXPECT_EQ(ModString::EnumOrd(u"a long item in the list", u"{some other long item;a long item in the list}"), 2);
  EXPECT_EQ(RequestedBytes(), before);
}

}  // namespace
}  // namespace qzbase::tests
