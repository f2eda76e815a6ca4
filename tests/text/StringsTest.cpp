#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/runtime/Locale.h"
#include "qzbase/text/GCStrings.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Array;

class Strings : public testing::Test {
  runtime::ScopedLocale locale_{TestLocale("en-US")};
};

struct Replacement {
  const char16_t *text, *old, *fresh, *expected;
};

// Calls what replaces with every row.
template <std::size_t Count>
void Check(std::u16string (*pReplace)(std::u16string_view, std::u16string_view, std::u16string_view),
           const Replacement (&pRows)[Count]) {
  for (const auto& [text, old, fresh, expected] : pRows)
    EXPECT_EQ(ToUtf8(pReplace(text, old, fresh)), ToUtf8(expected)) << ToUtf8(text) << " " << ToUtf8(old);
}

TEST_F(Strings, StripAndAppendUnits) {
  EXPECT_EQ(GCStrings::StripUnit(u"  a b  [x] [y]"), u"a b");
  EXPECT_EQ(GCStrings::StripUnit(u" no unit "), u" no unit ");
  EXPECT_EQ(GCStrings::StripUnit(u"   [x]"), u"");
  EXPECT_EQ(GCStrings::StripUnit(u"\ta\t[x]"), u"\ta\t");  // blanks only
  EXPECT_EQ(GCStrings::FormatUnit(u""), u"");
  EXPECT_EQ(GCStrings::FormatUnit(u"degC"), u" [degC]");
}

TEST_F(Strings, SplitAtADelimiter) {
  const struct {
    const char16_t *source, *delim;
    std::vector<std::u16string> items;
  } rows[] = {
      {u";", u";", {u"", u""}},
      {u"a;;b", u";", {u"a", u"", u"b"}},
      {u"aXbxc", u"x", {u"aXb", u"c"}},       // exactly compared
      {u"a:::b", u"::", {u"a", u"", u":b"}},  // overlapping occurrences count, the rest of the delimiter stays
      {u"abc", u"", {u"", u"", u"", u""}},    // nothing is found at every character
  };
  for (const auto& row : rows) {
    Array<std::u16string> items(5, 5);
    EXPECT_EQ(GCStrings::ParseString(row.source, row.delim, items), static_cast<std::int32_t>(row.items.size()));
    EXPECT_EQ(items, Array<std::u16string>(1, row.items));
  }

  Array<std::u16string> items(0, {u"x;y"});
  EXPECT_EQ(GCStrings::ParseString(u"", u";", items), 0);
  EXPECT_EQ(items, Array<std::u16string>(0, {u"x;y"}));
  EXPECT_EQ(GCStrings::ParseString(items[0], u";", items), 2);  // the source is one of the items
  EXPECT_EQ(items, Array<std::u16string>(1, {u"x", u"y"}));
}

TEST_F(Strings, WalkLinesUpToTheLastCarriageReturn) {
  const struct {
    std::int32_t position;
    const char16_t* line;
    std::int32_t next;
  } rows[] = {
      {1, u"a", 3}, {3, u"\nb", 6}, {6, u"", 7}, {7, u"", 7}, {8, u"", 8}, {100, u"", 100},
  };
  const std::u16string text = u"a\r\nb\r\rc";
  for (auto [position, line, next] : rows) {
    EXPECT_EQ(GCStrings::GetNextLine(text, position), line);
    EXPECT_EQ(position, next);
  }
  for (std::int32_t outside : {0, -1})
    EXPECT_EQ(ErrorOf([&] { GCStrings::GetNextLine(u"", outside); }), kInvalidArgument);
}

TEST_F(Strings, TakeTokens) {
  const struct {
    const char16_t *source, *delim, *token, *left;
  } rows[] = {{u"x;y;z", u";", u"x", u"y;z"},     {u";x", u";", u"", u"x"},       {u"x;", u";", u"x", u""},
              {u"a::b::c", u"::", u"a", u"b::c"}, {u"aXbxc", u"x", u"aXb", u"c"}, {u"x;y", u"", u"x;y", u""}};
  for (const auto& row : rows) {
    std::u16string source = row.source;
    EXPECT_EQ(GCStrings::GetNextToken(source, row.delim), row.token);
    EXPECT_EQ(source, row.left);
    EXPECT_EQ(GCStrings::StripFirstToken(row.source, row.delim), row.left);
  }
}

TEST_F(Strings, ReplaceEveryOccurrence) {
  const Replacement rows[] = {
      {u"aaa", u"a", u"aa", u"aaaaaa"}, {u"aaa", u"aa", u"b", u"ba"}, {u"aAa", u"a", u"A", u"AAA"},
      {u"abab", u"ab", u"", u""},       {u"abc", u"", u"x", u"abc"},  {u"", u"a", u"b", u""},
  };
  Check(&GCStrings::StrReplace, rows);
}

TEST_F(Strings, ReplaceWholeWords) {
  const Replacement rows[] = {
      {u"x+max(x)*b.x", u"x", u"y", u"y+max(y)*b.x"},  // parts of words and members stay
      {u"x(1)+x.a+x", u"x", u"y", u"x(1)+x.a+y"},      // calls and owners stay
      {u"X+x", u"x", u"yy", u"yy+yy"},                 // case is ignored
      {u"x", u"x", u"X", u"x"},                        // nothing but case would change
      {u"xy", u"x", u"z", u"zy"},                      // the last character is no follower
      {u"xyy", u"x", u"z", u"xyy"},
      {u"x1+1x x", u"x", u"y", u"y1+1y y"},                                  // digits and blanks separate
      {u"\u00E4x x\u00E4 x\u00E4", u"x", u"y", u"\u00E4x x\u00E4 y\u00E4"},  // letters with accents belong to words
      {u"x;x;x", u"x", u"", u";;"},
      {u"1;1;1", u"1;", u"", u"1;1"},          // the character that moves up is passed over
      {u"x-x", u"x", u"y+x", u"y+x-y+x"},      // inserted text would be replaced for ever
      {u"+b+b", u"+b", u"a+", u"a+a+"},        // begins in inserted text, ends behind it
      {u"+111 ", u"+1", u"a;+", u"a;a;a;+ "},  // again and again
      {u"x", u"x", u"1+x(", u"1+1+x(("},       // the bracket becomes a follower with the second replacement
      {u"((", u"((", u";(((", u";;((;((("},    // would go on for ever after that
      {u"abc", u"", u"x", u"abc"},
      {u"", u"x", u"y", u""}};
  Check(&GCStrings::ReplaceWord, rows);
}

TEST_F(Strings, ReplaceDelimitersInsideNumbers) {
  const Replacement rows[] = {{u"1,5;2,25", u",", u".", u"1.5;2.25"},
                              {u"a,b 1, 2 ,5 5,", u",", u".", u"a,b 1, 2 ,5 5,"},
                              {u"1,2,3", u",", u"", u"123"},
                              {u"1,2", u",", u"1,2", u"11,22"},
                              {u"1e5 1E5", u"e", u"x", u"1x5 1x5"},
                              {u"1e5", u"e", u"E", u"1e5"},
                              {u"1,2", u"", u".", u"1,2"},
                              {u"", u",", u".", u""},
                              {u"1111", u"1", u"2", u"1221"},  // what was inserted stands before the next one
                              {u"3-56", u"-5", u"+", u"3+56"}};
  Check(&GCStrings::NrDelimReplace, rows);  // of a longer delimiter only the first character goes
}

TEST_F(Strings, CutNamesIntoRootAndIndex) {
  const struct {
    const char16_t *name, *root, *index, *format;
  } rows[] = {{u"Ch007", u"Ch", u"007", u"000"},
              {u"Channel", u"Channel", u"", u""},
              {u"129", u"", u"129", u"000"},
              {u"A1B2", u"A1B", u"2", u"0"}};
  for (const auto& row : rows) {
    EXPECT_EQ(GCStrings::GetNameRoot(row.name), row.root);
    EXPECT_EQ(GCStrings::GetNameIndex(row.name), row.index);
    EXPECT_EQ(GCStrings::IndexFormat(row.index), row.format);
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
  EXPECT_EQ(GCStrings::StrReplace(text, u",", u"--").size(), text.size() + 300'000);
  EXPECT_EQ(GCStrings::NrDelimReplace(text, u",", u"--").size(), text.size() + 300'000);
  EXPECT_EQ(GCStrings::ReplaceWord(text, u",", u"--").size(), text.size() + 300'000);
}

}  // namespace
}  // namespace qzbase::tests
