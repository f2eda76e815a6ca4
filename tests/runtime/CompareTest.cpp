// Order of variants of any two kinds, held against what a running automation runtime answers.
#include <cmath>

#include <gtest/gtest.h>

#include "qzbase/runtime/Compare.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

std::string OrderText(Order pOrder) {
  constexpr const char* kTexts[] = {"LT", "EQ", "GT", "NULL"};
  return kTexts[static_cast<int>(pOrder)];
}

TEST(Compare, AnswersAsTheAutomationRuntime) {
  Disagreements disagreements("comparisons");
  for (const CorpusRow& row : Corpus("variant_compare.tsv")) {
    const auto left = ParseCorpusValue(row["left"]);
    const auto right = ParseCorpusValue(row["right"]);
    if (!row.IsSettled() || !left || !right) continue;
    const CaseRule rule = row["flags"].empty() ? CaseRule::CaseSensitive : CaseRule::IgnoreCase;
    const std::string expected = row["documented"].empty() ? row["result"] : row["documented"];
    const std::string actual = OrderText(Compare(*left, *right, rule, TestLocale(row["locale"])));
    disagreements.Checked();
    if (actual != expected)
      disagreements.Add(row, row["left"] + " with " + row["right"] + " " + row["flags"], expected, actual);
  }
}

TEST(Compare, KnowsWhatHasNoOrder) {
  EXPECT_EQ(Compare(std::nan(""), 1), Order::Unknown);
  EXPECT_EQ(Compare(Null{}, u"text"), Order::Unknown);
  EXPECT_THROW(Compare(Variant(New<Object>()), Null{}), AutomationError);
  EXPECT_THROW(Compare(1, Variant(Array<double>(1, 1))), AutomationError);
}

}  // namespace
}  // namespace qzbase::tests
