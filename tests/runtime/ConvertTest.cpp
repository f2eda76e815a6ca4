// Conversions between the kinds of a variant, held against what a running automation runtime answers.
#include <map>

#include <gtest/gtest.h>

#include "qzbase/runtime/Convert.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

// A byte is no kind of its own; the table's bytes are compared as numbers.
std::string Answer(const Variant& pValue, const std::string& pTarget, const LocaleRules& pRules) {
  static const std::map<std::string, VariantKind> kinds = {{"I2", VariantKind::Integer},  {"I4", VariantKind::Long},
                                                           {"R4", VariantKind::Single},   {"R8", VariantKind::Double},
                                                           {"DATE", VariantKind::Date},   {"BSTR", VariantKind::String},
                                                           {"BOOL", VariantKind::Boolean}};
  return TextOrError([&] {
    if (pTarget == "UI1") return "UI1:" + std::to_string(ToByte(pValue, pRules));
    return CorpusValueText(ConvertTo(pValue, kinds.at(pTarget), pRules));
  });
}

// Texts of booleans are always the words here, and always the English ones: rows made with other settings of the
// platform's function ask another question.
bool AsksSomethingElse(const CorpusRow& pRow) {
  const bool localised = pRow["flags"].find("LOCALBOOL") != std::string::npos;
  const bool asNumber = pRow["source"].starts_with("BOOL") && pRow["target"] == "BSTR" && pRow["flags"] != "ALPHABOOL";
  return pRow["target"] == "CY" || localised || asNumber;
}

// The platform's double is one unit off the nearest one for these texts; ours is the nearest.
bool IsInexact(const CorpusRow& pRow) {
  return pRow["target"] == "R8" && (pRow["source"] == "BSTR:1e39" || pRow["source"] == "BSTR:922337203685477.5807");
}

TEST(Convert, AnswersAsTheAutomationRuntime) {
  CheckTable("variant_convert.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    const auto source = ParseCorpusValue(pRow["source"]);
    if (!source || AsksSomethingElse(pRow) || IsInexact(pRow)) return {};
    // The runtime has a number of its own for what the platform calls a type mismatch.
    const bool isNull = pRow["source"] == "NULL" && pRow["documented"].empty() && pRow["hr"] != "00000000";
    return Comparison{isNull ? "error 94" : pRow.Expected("result"),
                      Answer(*source, pRow["target"], TestLocale(pRow["locale"]))};
  });
}

TEST(Convert, RefusesWhatHasNoValue) {
  const std::pair<Variant, std::string> rows[] = {{Null{}, "error 94"},
                                                  {Variant(nullptr), "error 91"},
                                                  {Variant(New<Object>()), "error 13"},
                                                  {Variant(Array<double>(1, 2)), "error 13"}};
  for (const auto& [value, error] : rows)
    for (const char* target : {"UI1", "I2", "I4", "R4", "R8", "DATE", "BSTR", "BOOL"})
      EXPECT_EQ(Answer(value, target, LocaleRules()), error) << CorpusValueText(value) << " to " << target;
  EXPECT_THROW(ConvertTo(Variant(1), VariantKind::Object), AutomationError);
  EXPECT_TRUE(ConvertTo(Variant(nullptr), VariantKind::Object).If<Ref<Object>>());
}

TEST(Variant, CopiesArraysDeeply) {
  Variant original(Array<double>(1, 3));
  Variant copy = original;
  std::get<Array<double>>(*copy.IfArray())[2] = 7;
  EXPECT_EQ(std::get<Array<double>>(*original.IfArray())[2], 0);
  original = copy;
  copy = Variant(1);
  EXPECT_EQ(std::get<Array<double>>(*original.IfArray())[2], 7);
}

TEST(AutomationError, KeepsTheLastOneOfTheThread) {
  ClearLastError();
  EXPECT_EQ(LastError().number, 0);
  EXPECT_THROW(Array<double>()[0], AutomationError);
  EXPECT_EQ(LastError().number, 9);
  EXPECT_EQ(LastError().description, u"Subscript out of range");
  for (std::int32_t number : {-5, 0, 1, 12, 999}) EXPECT_EQ(StandardErrorText(number), StandardErrorText(8)) << number;
}

}  // namespace
}  // namespace qzbase::tests
