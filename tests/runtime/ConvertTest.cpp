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
Variant Converted(const Variant& pValue, const std::string& pTarget, const LocaleRules& pRules) {
  static const std::map<std::string, VariantKind> kinds = {{"I2", VariantKind::Integer},  {"I4", VariantKind::Long},
                                                           {"R4", VariantKind::Single},   {"R8", VariantKind::Double},
                                                           {"DATE", VariantKind::Date},   {"BSTR", VariantKind::String},
                                                           {"BOOL", VariantKind::Boolean}};
  if (pTarget == "UI1") return Variant(std::int32_t{ToByte(pValue, pRules)});
  return ConvertTo(pValue, kinds.at(pTarget), pRules);
}

std::string Answer(const Variant& pValue, const std::string& pTarget, const LocaleRules& pRules) {
  try {
    const std::string text = CorpusValueText(Converted(pValue, pTarget, pRules));
    return pTarget == "UI1" ? "UI1" + text.substr(2) : text;
  } catch (const AutomationError& error) {
    return "error " + std::to_string(error.Number());
  }
}

std::string Expected(const CorpusRow& pRow) {
  if (!pRow["documented"].empty()) return pRow["documented"];
  if (pRow["hr"] == "00000000") return pRow["result"];
  if (pRow["source"] == "NULL")
    return "error 94";  // the runtime's own number for what the platform calls a type mismatch
  return pRow["hr"] == "80020005" ? "error 13" : "error 6";
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
  Disagreements disagreements("conversions");
  for (const CorpusRow& row : Corpus("variant_convert.tsv")) {
    const auto source = ParseCorpusValue(row["source"]);
    if (!row.IsSettled() || !source || AsksSomethingElse(row) || IsInexact(row)) continue;
    const std::string actual = Answer(*source, row["target"], TestLocale(row["locale"]));
    disagreements.Checked();
    if (actual != Expected(row)) disagreements.Add(row, row["source"] + " to " + row["target"], Expected(row), actual);
  }
}

TEST(Convert, RefusesWhatHasNoValue) {
  struct Row {
    Variant value;
    RuntimeError error;
  };
  const Row rows[] = {{Null{}, RuntimeError::InvalidUseOfNull},
                      {Variant(nullptr), RuntimeError::ObjectNotSet},
                      {Variant(New<Object>()), RuntimeError::TypeMismatch},
                      {Variant(Array<double>(1, 2)), RuntimeError::TypeMismatch}};
  for (const Row& row : rows)
    for (auto kind : {VariantKind::Integer, VariantKind::Long, VariantKind::Single, VariantKind::Double,
                      VariantKind::Date, VariantKind::String, VariantKind::Boolean}) {
      try {
        ConvertTo(row.value, kind);
        ADD_FAILURE() << CorpusValueText(row.value) << " to kind " << static_cast<int>(kind);
      } catch (const AutomationError& error) {
        EXPECT_TRUE(error.Is(row.error)) << error.what();
      }
    }
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
