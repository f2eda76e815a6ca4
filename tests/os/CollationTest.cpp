// The order of texts in a locale, held against what the platform answers.
#include <sstream>

#include <gtest/gtest.h>

#include "qzbase/os/Collation.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using os::CaseRule;

int Compare(std::u16string_view pLeft, std::u16string_view pRight, std::string_view pLocale) {
  return os::CompareText(pLeft, pRight, CaseRule::IgnoreCase, FromUtf8(pLocale));
}

TEST(Collation, AnswersAsTheTable) {
  Disagreements disagreements("comparisons of texts");
  for (const CorpusRow& row : Corpus("text_compare.tsv")) {
    const bool another = row["flags"].find("SORT_STRINGSORT") != std::string::npos;  // hyphens count there
    if (!row.IsSettled() || another) continue;
    const CaseRule rule = row["flags"].empty() ? CaseRule::CaseSensitive : CaseRule::IgnoreCase;
    const int actual = os::CompareText(row.Text("left"), row.Text("right"), rule, row.Text("locale"));
    disagreements.Checked();
    if (std::to_string(actual) != row["result"])
      disagreements.Add(row, row["left"] + "|" + row["right"] + " " + row["flags"], row["result"],
                        std::to_string(actual));
  }
}

// Whether compatibility forms differ from their plain characters is unsettled.
bool IsCompatibilityForm(std::u16string_view pWord) {
  return pWord == u"\u2460" || pWord == u"\uFF21";
}

// A list has one word a line behind its relation to the one before: "< word" or "= word".
TEST(Collation, KeepsTheOrderOfTheLists) {
  for (const std::string_view locale : kLocaleNames) {
    std::vector<std::pair<std::u16string, int>> words;  // with their rank
    int rank = 0;
    std::istringstream lines(ReadTestFile("data/text_order_" + std::string(locale) + ".txt"));
    for (std::string line; std::getline(lines, line);) {
      if (line.size() < 2) continue;
      if (line[0] == '<') ++rank;
      const std::u16string word = FromUtf8(line.substr(2));
      if (!IsCompatibilityForm(word)) words.emplace_back(word, rank);
    }
    ASSERT_GT(words.size(), 100u) << locale;
    int wrong = 0;
    for (const auto& [left, leftRank] : words)
      for (const auto& [right, rightRank] : words) {
        const int expected = leftRank < rightRank ? -1 : leftRank > rightRank ? 1 : 0;
        if (Compare(left, right, locale) != expected && ++wrong <= 10)
          ADD_FAILURE() << locale << " [" << ToUtf8(left) << "] [" << ToUtf8(right) << "] expected " << expected;
      }
  }
}

// The platform's order has no Turkish case rule, so neither system has.
TEST(Collation, IgnoresTheSameCaseInEveryLocale) {
  EXPECT_EQ(Compare(u"I", u"i", "tr-TR"), 0);
  EXPECT_NE(Compare(u"I", u"\u0131", "tr-TR"), 0);
  EXPECT_EQ(Compare(u"I", u"i", ""), 0);
}

}  // namespace
}  // namespace qzbase::tests
