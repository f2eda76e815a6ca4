// Order of variants of any two kinds, held against what a running automation runtime answers.
#include <cmath>

#include <gtest/gtest.h>

#include "qzbase/runtime/Compare.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

TEST(Compare, AnswersAsTheAutomationRuntime) {
  CheckTable("variant_compare.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    const auto left = ParseCorpusValue(pRow["left"]);
    const auto right = ParseCorpusValue(pRow["right"]);
    if (!left || !right) return {};
    const CaseRule rule = pRow["flags"].empty() ? CaseRule::CaseSensitive : CaseRule::IgnoreCase;
    const Order order = Compare(*left, *right, rule, TestLocale(pRow["locale"]));
    constexpr const char* kTexts[] = {"LT", "EQ", "GT", "NULL"};
    return Comparison{pRow["documented"].empty() ? pRow["result"] : pRow["documented"],
                      kTexts[static_cast<int>(order)]};
  });
}

TEST(Compare, KnowsWhatHasNoOrder) {
  EXPECT_EQ(Compare(std::nan(""), 1), Order::Unknown);
  EXPECT_EQ(Compare(Null{}, u"text"), Order::Unknown);
  EXPECT_THROW(Compare(Variant(New<Object>()), Null{}), AutomationError);
  EXPECT_THROW(Compare(1, Variant(Array<double>(1, 1))), AutomationError);
}

}  // namespace
}  // namespace qzbase::tests
