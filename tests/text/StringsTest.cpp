#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/text/GCStrings.h"
#include "qzbase/text/ModString.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using runtime::Array;
using Texts = std::vector<std::u16string>;

class Strings : public testing::Test {
  runtime::ScopedLocale locale_{TestLocale("en-US")};
};

TEST_F(Strings, StripAndAppendUnits) {
  const struct {
    const char16_t* name;
    const char16_t* stripped;
  } rows[] = {
      {u"Temperature [degC]", u"Temperature"},
      {u"  a b  [x] [y]", u"a b"},
      {u" no unit ", u" no unit "},
      {u"[x]", u""},
      {u"   [x]", u""},
      {u"", u""},
      {u"\ta\t[x]", u"\ta\t"},  // blanks only
  };
  for (const auto& row : rows) EXPECT_EQ(GCStrings::StripUnit(row.name), row.stripped);
  EXPECT_EQ(GCStrings::FormatUnit(u""), u"");
  EXPECT_EQ(GCStrings::FormatUnit(u"degC"), u" [degC]");
}

TEST_F(Strings, SplitAtADelimiter) {
  const struct {
    const char16_t* source;
    const char16_t* delim;
    Texts items;
    const char* why;
  } rows[] = {
      {u";", u";", {u"", u""}, ""},
      {u"a;;b", u";", {u"a", u"", u"b"}, ""},
      {u"a;", u";", {u"a", u""}, ""},
      {u"abc", u";", {u"abc"}, ""},
      {u"aXbxc", u"x", {u"aXb", u"c"}, "exactly compared"},
      {u"a::b", u"::", {u"a", u":b"}, "the rest of the delimiter stays"},
      {u"a:::b", u"::", {u"a", u"", u":b"}, "overlapping occurrences count"},
      {u"::", u"::", {u"", u":"}, ""},
      {u"abc", u"", {u"", u"", u"", u""}, "nothing is found at every character"},
  };
  for (const auto& row : rows) {
    Array<std::u16string> items(5, 5);
    EXPECT_EQ(GCStrings::ParseString(row.source, row.delim, items), static_cast<std::int32_t>(row.items.size()));
    EXPECT_EQ(items, Array<std::u16string>(1, row.items)) << row.why;
  }

  Array<std::u16string> items(0, {u"x;y"});
  const Array<std::u16string> before = items;
  EXPECT_EQ(GCStrings::ParseString(u"", u";", items), 0);
  EXPECT_EQ(items, before);
  EXPECT_EQ(GCStrings::ParseString(items[0], u";", items), 2);  // the source is one of the items
  EXPECT_EQ(items, Array<std::u16string>(1, {u"x", u"y"}));
}

TEST_F(Strings, WalkLinesUpToTheLastCarriageReturn) {
  const std::u16string text = u"a\r\nb\r\rc";
  const struct {
    const char16_t* line;
    std::int32_t next;
  } steps[] = {{u"a", 3}, {u"\nb", 6}, {u"", 7}, {u"", 7}};
  std::int32_t position = 1;
  for (const auto& step : steps) {
    EXPECT_EQ(GCStrings::GetNextLine(text, position), step.line);
    EXPECT_EQ(position, step.next);
  }
  for (std::int32_t outside : {8, 100}) {
    const std::int32_t before = outside;
    EXPECT_EQ(GCStrings::GetNextLine(text, outside), u"");
    EXPECT_EQ(outside, before);
  }
  for (std::int32_t outside : {0, -1}) {
    for (const std::u16string& source : {text, std::u16string()}) {
      try {
        GCStrings::GetNextLine(source, outside);
        ADD_FAILURE() << "nothing raised";
      } catch (const runtime::AutomationError& error) {
        EXPECT_TRUE(error.Is(runtime::RuntimeError::InvalidArgument));
      }
    }
  }
}

TEST_F(Strings, TakeTokens) {
  const struct {
    const char16_t* source;
    const char16_t* delim;
    const char16_t* token;
    const char16_t* left;
  } rows[] = {
      {u"x;y;z", u";", u"x", u"y;z"},     {u"xyz", u";", u"xyz", u""},
      {u";x", u";", u"", u"x"},           {u"x;", u";", u"x", u""},
      {u"a::b::c", u"::", u"a", u"b::c"}, {u"aXbxc", u"x", u"aXb", u"c"},
      {u"x;y", u"", u"x;y", u""},         {u"", u";", u"", u""},
  };
  for (const auto& row : rows) {
    std::u16string source = row.source;
    EXPECT_EQ(GCStrings::GetNextToken(source, row.delim), row.token);
    EXPECT_EQ(source, row.left);
    EXPECT_EQ(GCStrings::StripFirstToken(row.source, row.delim), row.left);
  }
}

TEST_F(Strings, ReplaceEveryOccurrence) {
  const struct {
    const char16_t* source;
    const char16_t* old;
    const char16_t* fresh;
    const char16_t* expected;
  } rows[] = {
      {u"aaa", u"a", u"aa", u"aaaaaa"}, {u"aaa", u"aa", u"b", u"ba"},      {u"aAa", u"a", u"A", u"AAA"},
      {u"abab", u"ab", u"", u""},       {u"abc", u"", u"x", u"abc"},       {u"", u"a", u"b", u""},
      {u"abc", u"b", u"b", u"abc"},     {u"a.b.", u".", u"..", u"a..b.."},
  };
  for (const auto& row : rows) EXPECT_EQ(GCStrings::StrReplace(row.source, row.old, row.fresh), row.expected);
}

TEST_F(Strings, ReplaceWholeWords) {
  const struct {
    const char16_t* text;
    const char16_t* old;
    const char16_t* fresh;
    const char16_t* expected;
    const char* why;
  } rows[] = {
      {u"x+max(x)*b.x", u"x", u"y", u"y+max(y)*b.x", "parts of words and members stay"},
      {u"fx(1)", u"x", u"y", u"fx(1)", ""},
      {u"x(1)+x", u"x", u"y", u"x(1)+y", "calls stay"},
      {u"x.a+x", u"x", u"y", u"x.a+y", ""},
      {u"X+x", u"x", u"yy", u"yy+yy", "case is ignored"},
      {u"x", u"x", u"X", u"x", "nothing but case would change"},
      {u"xy", u"x", u"z", u"zy", "the last character is no follower"},
      {u"xyy", u"x", u"z", u"xyy", ""},
      {u"x1+1x x", u"x", u"y", u"y1+1y y", "digits and blanks separate"},
      {u"\u00E4x x\u00E4 x\u00E4", u"x", u"y", u"\u00E4x x\u00E4 y\u00E4", "letters with accents belong to words"},
      {u"abc+abc", u"abc", u"d", u"d+d", ""},
      {u"x;x;x", u"x", u"", u";;", ""},
      {u"1;1;1", u"1;", u"", u"1;1", "the character that moves up is passed over"},
      {u"x-x", u"x", u"y+x", u"y+x-y+x", "inserted text would be replaced for ever"},
      {u"+b+b", u"+b", u"a+", u"a+a+", "begins in inserted text, ends behind it"},
      {u"+111 ", u"+1", u"a;+", u"a;a;a;+ ", "again and again"},
      {u"x", u"x", u"1+x(", u"1+1+x((", "the bracket becomes a follower with the second replacement"},
      {u"((", u"((", u";(((", u";;((;(((", "would go on for ever after that"},
      {u"abc", u"", u"x", u"abc", ""},
      {u"", u"x", u"y", u"", ""},
  };
  for (const auto& row : rows)
    EXPECT_EQ(ToUtf8(GCStrings::ReplaceWord(row.text, row.old, row.fresh)), ToUtf8(row.expected)) << row.why;
}

TEST_F(Strings, ReplaceDelimitersInsideNumbers) {
  const struct {
    const char16_t* text;
    const char16_t* old;
    const char16_t* fresh;
    const char16_t* expected;
  } rows[] = {
      {u"1,5;2,25", u",", u".", u"1.5;2.25"},
      {u"a,b", u",", u".", u"a,b"},
      {u"1, 2", u",", u".", u"1, 2"},
      {u",5 5,", u",", u".", u",5 5,"},
      {u"1,2,3", u",", u"", u"123"},
      {u"1,2", u",", u"<>", u"1<>2"},
      {u"1,2", u",", u"1,2", u"11,22"},
      {u"1e5 1E5", u"e", u"x", u"1x5 1x5"},
      {u"1e5", u"e", u"E", u"1e5"},
      {u"1,2", u"", u".", u"1,2"},
      {u"", u",", u".", u""},
      {u"1111", u"1", u"2", u"1221"},   // what was inserted stands before the next one
      {u"3-56", u"-5", u"+", u"3+56"},  // of a longer delimiter only the first character goes
  };
  for (const auto& row : rows)
    EXPECT_EQ(ToUtf8(GCStrings::NrDelimReplace(row.text, row.old, row.fresh)), ToUtf8(row.expected));
}

TEST_F(Strings, CutNamesIntoRootAndIndex) {
  const struct {
    const char16_t* name;
    const char16_t* root;
    const char16_t* index;
    const char16_t* format;
  } rows[] = {
      {u"Channel12", u"Channel", u"12", u"00"},
      {u"Ch007", u"Ch", u"007", u"000"},
      {u"Channel", u"Channel", u"", u""},
      {u"12", u"", u"12", u"00"},
      {u"A1B2", u"A1B", u"2", u"0"},
      {u"", u"", u"", u""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(GCStrings::GetNameRoot(row.name), row.root);
    EXPECT_EQ(GCStrings::GetNameIndex(row.name), row.index);
    EXPECT_EQ(GCStrings::IndexFormat(row.index), row.format);
  }
  const struct {
    std::int32_t position;
    const char16_t* character;
  } characters[] = {{-1, u""}, {0, u""}, {1, u"a"}, {3, u"c"}, {4, u""}};
  for (const auto& row : characters) EXPECT_EQ(GCStrings::GetChar(u"abc", row.position), row.character);
}

// Ten times the text may not cost a hundred times the copying: a million delimiters end within the test's time.
TEST_F(Strings, TakeTimeInProportionToTheText) {
  std::u16string text;
  for (int i = 0; i < 300'000; ++i) text += u"1,2;";
  Array<std::u16string> items;
  EXPECT_EQ(GCStrings::ParseString(text, u";", items), 300'001);
  EXPECT_EQ(GCStrings::StrReplace(text, u",", u"--").size(), text.size() + 300'000);
  EXPECT_EQ(GCStrings::NrDelimReplace(text, u",", u"--").size(), text.size() + 300'000);
  EXPECT_EQ(GCStrings::ReplaceWord(text, u",", u"--").size(), text.size() + 300'000);
}

}  // namespace
}  // namespace qzbase::tests
