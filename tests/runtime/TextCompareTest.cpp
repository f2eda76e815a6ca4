#include <string_view>

#include <gtest/gtest.h>

#include "qzbase/runtime/TextCompare.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using runtime::EqualName;
using runtime::FindText;

constexpr std::size_t kNone = std::u16string_view::npos;

TEST(TextCompare, FindText) {
  const struct {
    std::u16string_view text, sought;
    std::size_t start, expected;
  } rows[] = {
      {u"Temperature", u"PER", 0, 3},
      {u"abcABC", u"abc", 1, 3},
      {u"abc", u"abcd", 0, kNone},
      {u"abc", u"c", 2, 2},
      {u"abc", u"c", 3, kNone},
      // An empty text is found at once, up to the end.
      {u"abc", u"", 0, 0},
      {u"abc", u"", 3, 3},
      {u"abc", u"", 4, kNone},
      {u"", u"a", 0, kNone},
      // Punctuation is as good as letters, also what weighs little in the order.
      {u"a[b]c", u"]", 0, 3},
      {u"well-known", u"-", 0, 4},
      {u"it's", u"-", 0, kNone},
      {u"a\rb", u"\r", 0, 1},
      // Letters beyond ASCII, before, behind and inside.
      {u"Größe ÄHRE", u"ähre", 0, 6},
      {u"ÄÖx", u"X", 0, 2},
      {u"xÄ", u"x", 0, 0},
      {u"aäÄa", u"Ä", 2, 2},
      {u"resume", u"résumé", 0, kNone},
      // Stretches have the length of what is sought: the ligature of one character cannot equal its two letters.
      {u"Straße", u"ss", 0, kNone}};
  for (const auto& row : rows)
    EXPECT_EQ(FindText(row.text, row.sought, row.start, TestLocale("de-DE")), row.expected)
        << ToUtf8(row.text) << "|" << ToUtf8(row.sought) << " from " << row.start;
}

TEST(TextCompare, IgnoresCaseAndFollowsTheLocale) {
  EXPECT_EQ(runtime::CompareText(u"ABC", u"abc", TestLocale("en-US")), 0);
  EXPECT_TRUE(runtime::EqualText(u"STRASSE", u"Straße", TestLocale("de-DE")));
  EXPECT_FALSE(runtime::EqualText(u"a", u"ä", TestLocale("de-DE")));
  EXPECT_EQ(runtime::CompareText(u"z", u"ö", TestLocale("de-DE")), 1);
  EXPECT_EQ(runtime::CompareText(u"z", u"ö", TestLocale("sv-SE")), -1);
  const runtime::ScopedLocale swedish(TestLocale("sv-SE"));
  EXPECT_EQ(runtime::CompareText(u"z", u"ö"), -1);
}

TEST(TextCompare, NamesIgnoreTheCaseOfAsciiAlone) {
  EXPECT_TRUE(EqualName(u"Item_1", u"iTEM_1"));
  EXPECT_TRUE(EqualName(u"", u""));
  EXPECT_FALSE(EqualName(u"a", u"ab"));
  EXPECT_FALSE(EqualName(u"ä", u"Ä"));
  EXPECT_FALSE(EqualName(u"[", u"{"));  // neighbours of the letters that differ as cases do
  EXPECT_FALSE(EqualName(u"@", u"`"));
  EXPECT_FALSE(EqualName(u"K", u"\u212A"));
}

}  // namespace
}  // namespace qzbase::tests
