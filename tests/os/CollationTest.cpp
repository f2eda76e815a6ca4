#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/os/Collation.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using os::CaseRule;
using os::CompareText;

TEST(Collation, AgreesWithTheTable) {
  CheckTable("text_compare.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    const std::string& flags = pRow["flags"];
    if (flags == "NORM_IGNORECASE|SORT_STRINGSORT") return {};  // nothing here has hyphens at full weight
    const CaseRule rule = flags == "NORM_IGNORECASE" ? CaseRule::IgnoreCase : CaseRule::CaseSensitive;
    return Comparison{pRow["result"],
                      std::to_string(CompareText(pRow.Text("left"), pRow.Text("right"), rule, pRow.Text("locale")))};
  });
}

// Lines "< text" (sorts after the line before) or "= text" (sorts with it): all texts with their ranks. The two
// characters whose compatibility forms are unsettled are left out.
std::vector<std::pair<std::u16string, int>> ReadOrder(std::string_view pLocale) {
  std::istringstream lines(ReadTestFile("data/text_order_" + std::string(pLocale) + ".txt"));
  std::vector<std::pair<std::u16string, int>> order;
  int rank = 0;
  for (std::string line; std::getline(lines, line);) {
    if (line[0] == '<') ++rank;
    const std::u16string text = FromUtf8(std::string_view(line).substr(2));
    if (text != u"\u2460" && text != u"\uFF21") order.emplace_back(text, rank);
  }
  return order;
}

TEST(Collation, AnyTwoWordsOfTheListsStandInTheirOrder) {
  for (const std::string_view locale : kLocaleNames) {
    const auto order = ReadOrder(locale);
    ASSERT_GT(order.size(), 150u) << locale;
    std::string wrong;
    for (const auto& [left, rank] : order)
      for (const auto& [right, other] : order)
        if (CompareText(left, right, CaseRule::IgnoreCase, FromUtf8(locale)) != (rank > other) - (rank < other))
          wrong += "[" + ToUtf8(left) + "] [" + ToUtf8(right) + "] ";
    EXPECT_EQ(wrong, "") << locale;
  }
}

constexpr CaseRule kCase = CaseRule::CaseSensitive;
constexpr CaseRule kNoCase = CaseRule::IgnoreCase;

TEST(Collation, OrderOfLevels) {
  const std::tuple<const char16_t*, std::u16string_view, std::u16string_view, CaseRule, int> rows[] = {
      // Case decides after the accents and before the hyphens; the first difference of case decides.
      {u"en-US", u"aB", u"Ab", kCase, -1},
      {u"en-US", u"á", u"B", kCase, -1},
      {u"en-US", u"A", u"á", kCase, -1},
      // Hyphens: none before any, late before early, apostrophe before hyphen in the same place.
      {u"en-US", u"abc", u"abc-", kNoCase, -1},
      {u"en-US", u"ab-c", u"a-bc", kNoCase, -1},
      {u"en-US", u"a'b", u"a-b", kNoCase, -1},
      {u"en-US", u"a-b'c", u"a-'bc", kNoCase, -1},
      {u"en-US", u"a-á", u"aá-", kNoCase, 1},
      {u"en-US", u"a\u0001b", u"ab", kNoCase, 1},
      // Composed and decomposed letters are one.
      {u"en-US", u"\u1EA5", u"a\u0302\u0301", kCase, 0},
      {u"fr-CA", u"côte", u"coté", kNoCase, -1},
      // Letters that a language adds to A to Z, also where plain ASCII makes them up.
      {u"cs-CZ", u"ch", u"cz", kNoCase, 1},
      {u"da-DK", u"aa", u"z", kNoCase, 1},
      {u"da-DK", u"æ", u"z", kNoCase, 1},
      {u"tr-TR", u"i", u"I", kNoCase, 0},
      // The invariant order and an unknown locale are in dictionary order too.
      {u"", u"ä", u"b", kCase, -1},
      {u"xx-unknown", u"ä", u"b", kNoCase, -1}};
  for (const auto& [locale, left, right, rule, expected] : rows) {
    SCOPED_TRACE(ToUtf8(locale) + " " + ToUtf8(left) + "|" + ToUtf8(right));
    EXPECT_EQ(CompareText(left, right, rule, locale), expected);
    EXPECT_EQ(CompareText(right, left, rule, locale), -expected);
  }
}

// A letter beyond ASCII in front takes the other way through the code than plain ASCII; the answer is the same.
TEST(Collation, PlainAsciiAndTheRestMakeOneOrder) {
  constexpr std::u16string_view kTexts[] = {u"",  u" ",  u"_",  u"~",   u"+",   u"0",  u"!",   u"a", u"A",
                                            u"z", u"a-", u"'a", u"-'a", u"a b", u"ab", u"a.b", u"aB"};
  const auto accented = [](std::u16string_view pText) { return std::u16string(1, u'\u00E4').append(pText); };
  for (const std::u16string_view left : kTexts)
    for (const std::u16string_view right : kTexts)
      for (const CaseRule rule : {kCase, kNoCase})
        EXPECT_EQ(CompareText(left, right, rule, u"de-DE"),
                  CompareText(accented(left), accented(right), rule, u"de-DE"))
            << ToUtf8(left) << "|" << ToUtf8(right);
}

}  // namespace
}  // namespace qzbase::tests
