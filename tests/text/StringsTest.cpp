// Tokens, words and names; range strings and enumerations.
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/runtime/Locale.h"
#include "qzbase/text/GCStrings.h"
#include "qzbase/text/RangeString.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Array;
using runtime::Variant;
using Items = std::vector<std::u16string>;

class Strings : public testing::Test {
  runtime::ScopedLocale locale_{TestLocale("en-US")};
};
using Ranges = Strings;

using Replacement = std::tuple<const char16_t*, const char16_t*, const char16_t*, const char16_t*>;

// Calls what replaces with every row.
void Check(std::u16string (*pReplace)(std::u16string_view, std::u16string_view, std::u16string_view),
           const std::vector<Replacement>& pRows) {
  for (const auto& [text, old, fresh, expected] : pRows)
    EXPECT_EQ(ToUtf8(pReplace(text, old, fresh)), ToUtf8(expected)) << ToUtf8(text) << " " << ToUtf8(old);
}

TEST_F(Strings, StripAndAppendUnits) {
  for (const auto& [name, stripped] : {std::pair(u"  a b  [x] [y]", u"a b"),
                                       {u" no unit ", u" no unit "},
                                       {u"   [x]", u""},
                                       {u"\ta\t[x]", u"\ta\t"}})  // blanks only
    EXPECT_EQ(GCStrings::StripUnit(name), stripped);
  EXPECT_EQ(GCStrings::FormatUnit(u"") + GCStrings::FormatUnit(u"degC"), u" [degC]");
}

TEST_F(Strings, SplitAtADelimiter) {
  const std::tuple<const char16_t*, const char16_t*, Items> rows[] = {
      {u";", u";", {u"", u""}},
      {u"a;;b", u";", {u"a", u"", u"b"}},
      {u"aXbxc", u"x", {u"aXb", u"c"}},       // exactly compared
      {u"a:::b", u"::", {u"a", u"", u":b"}},  // overlapping occurrences count, the rest of the delimiter stays
      {u"abc", u"", {u"", u"", u"", u""}}};   // nothing is found at every character
  for (const auto& [source, delim, expected] : rows) {
    Array<std::u16string> items(5, 5);
    EXPECT_EQ(GCStrings::ParseString(source, delim, items), std::ssize(expected));
    EXPECT_EQ(items, Array<std::u16string>(1, expected));
  }
  Array<std::u16string> items(0, {u"x;y"});
  EXPECT_EQ(GCStrings::ParseString(u"", u";", items), 0);
  EXPECT_EQ(GCStrings::ParseString(items[0], u";", items), 2);  // left as it was; the source is one of the items
  EXPECT_EQ(items, Array<std::u16string>(1, {u"x", u"y"}));
}

// What a host's variable holds before it has an array: nothing, or an array without dimensions.
TEST_F(Strings, FillVariablesWithoutDimensions) {
  const auto strings = New<GCStrings>();
  const auto parse = [&](std::u16string_view pText, Variant& pVariable) {
    Variant arguments[] = {pText, pVariable};
    const Variant count = strings->Invoke(u"ParseEnumRange", runtime::CallKind::Method, arguments);
    pVariable = arguments[1];
    return *count.If<std::int32_t>();
  };
  for (const Variant& before : {Variant(), Variant(Array<std::u16string>()), Variant(Array<Variant>())}) {
    Variant variable = before;
    EXPECT_EQ(parse(u"", variable) + parse(u"{}", variable), 0);
    EXPECT_EQ(variable.Kind(), before.Kind());
    EXPECT_EQ(*strings->Call(u"MakeEnumRange", variable).If<std::u16string>(), u"{}");
    EXPECT_EQ(parse(u"{a;b}", variable), 2);
    EXPECT_EQ(*strings->Call(u"MakeEnumRange", variable).If<std::u16string>(), u"{a;b}");
  }
}

TEST_F(Strings, WalkLinesUpToTheLastCarriageReturn) {
  const std::tuple<std::int32_t, const char16_t*, std::int32_t> rows[] = {
      {1, u"a", 3}, {3, u"\nb", 6}, {6, u"", 7}, {7, u"", 7}, {8, u"", 8}, {100, u"", 100}};
  for (const auto& [start, line, next] : rows) {
    std::int32_t position = start;
    EXPECT_EQ(GCStrings::GetNextLine(u"a\r\nb\r\rc", position), line);
    EXPECT_EQ(position, next);
  }
  for (std::int32_t outside : {0, -1})
    EXPECT_EQ(ErrorOf([&] { GCStrings::GetNextLine(u"", outside); }), kInvalidArgument);
}

TEST_F(Strings, TakeTokens) {
  const std::tuple<const char16_t*, const char16_t*, const char16_t*, const char16_t*> rows[] = {
      {u"x;y;z", u";", u"x", u"y;z"},     {u";x", u";", u"", u"x"},       {u"x;", u";", u"x", u""},
      {u"a::b::c", u"::", u"a", u"b::c"}, {u"aXbxc", u"x", u"aXb", u"c"}, {u"x;y", u"", u"x;y", u""}};
  for (const auto& [text, delim, token, left] : rows) {
    std::u16string source = text;
    EXPECT_EQ(GCStrings::GetNextToken(source, delim), token);
    EXPECT_EQ(source, left);
    EXPECT_EQ(GCStrings::StripFirstToken(text, delim), left);
  }
}

TEST_F(Strings, ReplaceTextsWordsAndDelimiters) {
  Check(&GCStrings::StrReplace, {{u"aaa", u"a", u"aa", u"aaaaaa"},
                                 {u"aaa", u"aa", u"b", u"ba"},
                                 {u"aAa", u"a", u"A", u"AAA"},
                                 {u"abab", u"ab", u"", u""},
                                 {u"abc", u"", u"x", u"abc"}});
  Check(&GCStrings::ReplaceWord,
        {{u"x+max(x)*b.x", u"x", u"y", u"y+max(y)*b.x"},  // parts of words and members stay
         {u"x(1)+x.a+x", u"x", u"y", u"x(1)+x.a+y"},      // calls and owners stay
         {u"X+x", u"x", u"yy", u"yy+yy"},                 // case is ignored
         {u"x", u"x", u"X", u"x"},                        // nothing but case would change
         {u"xy", u"x", u"z", u"zy"},                      // the last character is no follower
         {u"xyy", u"x", u"z", u"xyy"},
         {u"x1+1x x", u"x", u"y", u"y1+1y y"},                                  // digits and blanks separate
         {u"\u00E4x x\u00E4 x\u00E4", u"x", u"y", u"\u00E4x x\u00E4 y\u00E4"},  // accented letters belong to words
         {u"1;1;1", u"1;", u"", u"1;1"},          // the character that moves up is passed over
         {u"x-x", u"x", u"y+x", u"y+x-y+x"},      // inserted text would be replaced for ever
         {u"+b+b", u"+b", u"a+", u"a+a+"},        // begins in inserted text, ends behind it
         {u"+111 ", u"+1", u"a;+", u"a;a;a;+ "},  // again and again
         {u"x", u"x", u"1+x(", u"1+1+x(("},       // the bracket becomes a follower with the second replacement
         {u"((", u"((", u";(((", u";;((;((("},    // would go on for ever after that
         {u"abc", u"", u"x", u"abc"},
         {u"", u"x", u"y", u""}});
  Check(&GCStrings::NrDelimReplace, {{u"1,5;2,25", u",", u".", u"1.5;2.25"},
                                     {u"a,b 1, 2 ,5 5,", u",", u".", u"a,b 1, 2 ,5 5,"},
                                     {u"1,2,3", u",", u"", u"123"},
                                     {u"1,2", u",", u"1,2", u"11,22"},
                                     {u"1e5 1E5", u"e", u"x", u"1x5 1x5"},
                                     {u"1e5", u"e", u"E", u"1e5"},
                                     {u"1,2", u"", u".", u"1,2"},
                                     {u"1111", u"1", u"2", u"1221"},     // what was inserted stands before the next one
                                     {u"3-56", u"-5", u"+", u"3+56"}});  // of more characters only the first goes
}

TEST_F(Strings, CutNamesIntoRootAndIndex) {
  const std::tuple<const char16_t*, const char16_t*, const char16_t*, const char16_t*> rows[] = {
      {u"Ch007", u"Ch", u"007", u"000"},
      {u"Channel", u"Channel", u"", u""},
      {u"129", u"", u"129", u"000"},
      {u"A1B2", u"A1B", u"2", u"0"}};
  for (const auto& [name, root, index, format] : rows) {
    EXPECT_EQ(GCStrings::GetNameRoot(name), root);
    EXPECT_EQ(GCStrings::GetNameIndex(name), index);
    EXPECT_EQ(GCStrings::IndexFormat(index), format);
  }
  std::u16string characters;
  for (std::int32_t position = -1; position <= 4; ++position) characters += GCStrings::GetChar(u"abc", position) + u";";
  EXPECT_EQ(characters, u";;a;b;c;;");
}

// Ten times the text may not cost a hundred times the copying: a million delimiters end within the test's time.
TEST_F(Strings, TakeTimeInProportionToTheText) {
  std::u16string text;
  for (int i = 0; i < 300'000; ++i) text += u"1,2;";
  Array<std::u16string> items;
  EXPECT_EQ(GCStrings::ParseString(text, u";", items), 300'001);
  for (const auto replace : {&GCStrings::StrReplace, &GCStrings::NrDelimReplace, &GCStrings::ReplaceWord})
    EXPECT_EQ(replace(text, u",", u"--").size(), text.size() + 300'000);
}

TEST_F(Ranges, EnumerationsAreMadeAndRead) {
  const std::pair<const char16_t*, Items> rows[] = {{u"{a;B;;a}", {u"a", u"B", u"", u"a"}},
                                                    {u"{a;}", {u"a", u""}},
                                                    {u"a; b}", {u"a", u" b"}},  // either brace may be missing
                                                    {u"{{a}}", {u"{a}"}},
                                                    {u"{", {}},
                                                    {u"{}", {}}};
  for (const auto& [range, items] : rows) {
    Array<std::u16string> read(7, {u"kept"});
    const auto expected = items.empty() ? read : Array<std::u16string>(1, items);
    EXPECT_EQ(ModString::ParseEnumRange(range, read), std::ssize(items));
    EXPECT_EQ(read, expected) << ToUtf8(range);
    for (std::int32_t i = 0; i <= read.Size() + 1; ++i)
      EXPECT_EQ(ModString::EnumVal(i, range), i >= 1 && i <= std::ssize(items) ? read[i] : u"") << ToUtf8(range) << i;
  }
  for (const auto& [item, position] : {std::pair(u"a", 1), {u"", 3}, {u"b", -1}})
    EXPECT_EQ(ModString::EnumOrd(item, rows[0].first), position);
  EXPECT_EQ(ModString::EnumOrd(u"", u"{}"), -1);
  EXPECT_EQ(ModString::MakeEnumRange(Array<std::u16string>(-3, {u"x", u"y;"}), u"none"), u"{none;x;y;}");
  EXPECT_EQ(ModString::MakeEnumRange(Array<std::u16string>(1, 0), u"none"), u"{none}");
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
  const std::tuple<const char16_t*, const char16_t*, bool, bool, bool> rows[] = {
      {u"b", u"{a;B;c}", true, true, false}, {u"", u"{a;;c}", true, true, false},
      {u"", u"{a;c}", false, true, false},   {u"a;b", u"{a;b}", true, true, false},
      {u"a", u"{ab;*}", false, false, true}, {u"[0", u"{[0;*]}", true, false, false},
      {u"a", u"{a", false, false, false},    {u"", u"{", false, false, false},
      {u"", u"", false, false, false},       {u"", u"{}", true, true, false}};
  for (const auto& [value, range, isMember, isList, isCombo] : rows) {
    EXPECT_EQ(ModString::IsMember(value, range), isMember) << ToUtf8(range);
    EXPECT_EQ(ModString::IsList(range), isList) << ToUtf8(range);
    EXPECT_EQ(ModString::IsCombo(range), isCombo) << ToUtf8(range);
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
  const std::tuple<double, const char16_t*, const char16_t*, bool> rows[] = {
      {7, u"", u"3", true},           {0, u"[0;1]", u"", true},      {1, u"[0;1]", u"0", true},
      {2, u"[0;1]", u"", false},      {0.3, u"[0;1]", u"0.1", true}, {0.35, u"[0;1]", u"0.1", false},
      {0, u"[1;2", u"", false},       {0, u"[0]", u"", false},       {1, u"[1;1;5]", u"", true},
      {0, u">=5", u"", true},         {5, u"*", u"", false},         {5, u"5x", u"2", true},
      {2.5, u"[0.5;4]", u"1", true},  {2, u"[0.5;4]", u"1", false},  {-3, u"[-5;0]", u"-2", true},
      {1e-20, u"[0;1]", u"1", false}, {3, u"[0;9]", u"2x", false},   {1234567.3, u"[0;9e9]", u"0.1", true},
      {1, u"[0;1E999]", u"", false},  {1, u"[0;1]", u"1E999", false}};
  for (const auto& [value, range, step, expected] : rows)
    EXPECT_EQ(ModString::IsInRange(value, range, step), expected) << value << ToUtf8(range);
  EXPECT_EQ(ErrorOf([] { ModString::IsInRange(1, u"[0;1]", u"1E-320"); }), kOverflow);

  const std::size_t before = RequestedBytes();  // the tests that are made for every cell of a table
  EXPECT_TRUE(ModString::IsInRange(0.7, u"[0.1;1000000000]", u"0.1"));
  EXPECT_EQ(ModString::EnumOrd(u"a long item in the list", u"{some other long item;a long item in the list}"), 2);
  EXPECT_EQ(RequestedBytes(), before);
}

}  // namespace
}  // namespace qzbase::tests
