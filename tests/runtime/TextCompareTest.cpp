// Searching and comparing texts ignoring case.
#include <gtest/gtest.h>

#include "qzbase/os/Collation.h"
#include "qzbase/runtime/TextCompare.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

TEST(TextCompare, FindsStretchesOfTheSameLength) {
  constexpr std::size_t kNone = std::u16string_view::npos;
  const struct {
    const char16_t* text;
    const char16_t* sought;
    std::size_t start;
    std::size_t expected;
  } rows[] = {{u"Temperature [degC]", u"[", 0, 12},
              {u"abcABC", u"C", 0, 2},
              {u"abcABC", u"C", 3, 5},
              {u"abc", u"d", 0, kNone},
              {u"abc", u"abcd", 0, kNone},
              {u"abc", u"", 1, 1},
              {u"abc", u"", 3, 3},
              {u"abc", u"", 4, kNone},
              {u"abc", u"c", 9, kNone},
              {u"\u00C4rger \u00E4rger", u"\u00E4R", 1, 6},
              {u"e\u00E9", u"\u00C9", 0, 1}};
  for (const auto& row : rows)
    EXPECT_EQ(FindText(row.text, row.sought, row.start, TestLocale("de-DE")), row.expected)
        << ToUtf8(row.text) << "|" << ToUtf8(row.sought) << " from " << row.start;
}

TEST(TextCompare, FastPathsAnswerAsTheCollationDoes) {
  const LocaleRules& rules = TestLocale("en-US");
  const char16_t* words[] = {u"",   u"a", u"A",    u"ab",    u"aB",    u"a b",  u"a1", u"1",
                             u"10", u"2", u"coop", u"co-op", u"can't", u"cant", u"_",  u"Zz"};
  for (const char16_t* left : words)
    for (const char16_t* right : words) {
      const int expected = os::CompareText(left, right, os::CaseRule::IgnoreCase, rules.name);
      EXPECT_EQ(CompareText(left, right, rules), expected) << ToUtf8(left) << "|" << ToUtf8(right);
      EXPECT_EQ(EqualText(left, right, rules), expected == 0) << ToUtf8(left) << "|" << ToUtf8(right);
    }
}

TEST(TextCompare, NamesIgnoreCaseOfPlainLettersOnly) {
  EXPECT_TRUE(EqualName(u"NrValid", u"nrvalid"));
  EXPECT_FALSE(EqualName(u"NrValid", u"NrVali"));
  EXPECT_FALSE(EqualName(u"\u00C4", u"\u00E4"));
  EXPECT_FALSE(EqualName(u"[", u"{"));
}

}  // namespace
}  // namespace qzbase::tests
