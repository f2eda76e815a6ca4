#include <string>
#include <string_view>
#include <tuple>

#include <gtest/gtest.h>

#include "qzbase/runtime/TextCompare.h"
#include "qzbase/runtime/WildcardPattern.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

constexpr std::size_t kNone = std::u16string_view::npos;

TEST(TextCompare, FindText) {
  const std::tuple<std::u16string_view, std::u16string_view, std::size_t, std::size_t> rows[] = {
      {u"Temperature", u"PER", 0, 3},
      {u"abcABC", u"abc", 1, 3},
      {u"abc", u"abcd", 0, kNone},
      {u"abc", u"c", 3, kNone},
      // An empty text is found at once, up to the end.
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
  for (const auto& [text, sought, start, expected] : rows)
    EXPECT_EQ(FindText(text, sought, start, TestLocale("de-DE")), expected) << ToUtf8(text) << "|" << ToUtf8(sought);
}

TEST(TextCompare, IgnoresCaseAndFollowsTheLocale) {
  EXPECT_TRUE(EqualText(u"STRASSE", u"Straße", TestLocale("de-DE")));
  EXPECT_FALSE(EqualText(u"a", u"ä", TestLocale("de-DE")));
  EXPECT_EQ(CompareText(u"z", u"ö", TestLocale("de-DE")), 1);
  const ScopedLocale swedish(TestLocale("sv-SE"));
  EXPECT_EQ(CompareText(u"z", u"ö"), -1);
}

TEST(TextCompare, NamesIgnoreTheCaseOfAsciiAlone) {
  EXPECT_TRUE(EqualName(u"Item_1", u"iTEM_1") && EqualName(u"", u""));
  // Neighbours of the letters differ as cases do.
  for (const auto& [left, right] :
       {std::pair(u"a", u"ab"), {u"ä", u"Ä"}, {u"[", u"{"}, {u"@", u"`"}, {u"K", u"\u212A"}})
    EXPECT_FALSE(EqualName(left, right)) << ToUtf8(left);
}

TEST(WildcardPattern, DecidesWhatFits) {
  const ScopedLocale locale(TestLocale("en-US"));
  const std::tuple<const char16_t*, const char16_t*, const char16_t*> rows[] = {
      {u"", u"**", u"?"},           {u"a", u"a*", u""},          {u"RUN7.DAT", u"run#.dat", u"run7#.dat"},
      {u"aab", u"*ab", u"*aa"},     {u"abcbd", u"a*b?", u"a*b"}, {u"a*", u"a[*]", u"a[?]"},
      {u"B", u"[a-c]", u"[c-d]"},   {u"-", u"[a-]", u"[a-c]"},   {u"d", u"[!a-cx]", u"[!-d]"},
      {u"!", u"[!]", u"[!!]"},      {u"ab", u"a[]b", u"a[ ]b"},  {u"a]", u"a]", u"a[[]"},
      {u"\u00C4", u"\u00E4", u"a"}, {u"b-", u"[a-c-]*", u"##"}};
  for (const auto& [text, fits, doesNotFit] : rows) {
    EXPECT_TRUE(FitsWildcards(text, fits)) << ToUtf8(text) << " " << ToUtf8(fits);
    EXPECT_FALSE(FitsWildcards(text, doesNotFit)) << ToUtf8(text) << " " << ToUtf8(doesNotFit);
  }
  for (const char16_t* fault : {u"a[b", u"a[c-a]"})
    EXPECT_EQ(ErrorOf([&] { FitsWildcards(u"ab", fault); }), NumberOf(RuntimeError::InvalidPattern));
  EXPECT_FALSE(FitsWildcards(std::u16string(20'000, u'a'), u"*a*a*a*a*a*a*b"));  // soon
}

}  // namespace
}  // namespace qzbase::tests
