#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "qzbase/runtime/DecimalDigits.h"
#include "qzbase/runtime/NumberText.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

TEST(NumberText, DoublesAsThePlatformShowsThem) {
  CheckTable("number_general.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    return Comparison{pRow["documented"].empty() ? pRow["text"] : pRow["documented"],
                      ToUtf8(NumberText(pRow.DoubleFromBits("value_bits"), TestLocale(pRow["locale"])))};
  });
}

TEST(NumberText, FloatsShowSevenDigits) {
  const struct {
    float value;
    std::u16string_view text;
  } rows[] = {{0.1F, u"0,1"},
              {1.0F / 3, u"0,3333333"},
              {1.0F / 30, u"3,333334E-02"},
              {16777216.0F, u"1,677722E+07"},
              {9999999.0F, u"9999999"},
              {1e-7F, u"0,0000001"},
              {-3.4028235e38F, u"-3,402823E+38"},
              {-0.0F, u"0"}};
  for (const auto& row : rows) EXPECT_EQ(NumberText(row.value, TestLocale("de-DE")), row.text);
}

TEST(NumberText, WholeAndNonFiniteNumbers) {
  EXPECT_EQ(NumberText(std::numeric_limits<std::int32_t>::min()), u"-2147483648");
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(NumberText(kInfinity, LocaleRules()), u"1.#INF");
  EXPECT_EQ(NumberText(-kInfinity, LocaleRules()), u"-1.#INF");
  EXPECT_EQ(NumberText(std::nan(""), LocaleRules()), u"-1.#IND");

  std::u16string text = u"x=";
  AppendNumberText(text, -1.5, LocaleRules());
  AppendNumberText(text, 7);
  EXPECT_EQ(text, u"x=-1.57");
}

TEST(NumberText, DelimiterOfAnyLengthAndPlainMinus) {
  LocaleRules rules;
  rules.decimal = u"::";
  rules.negativeSign = u"\u2212";
  EXPECT_EQ(NumberText(-12.5, rules), u"-12::5");
  EXPECT_EQ(NumberText(1.25e-20, rules), u"1::25E-20");
}

// Where the shortest text ends in a 5 just behind the digits asked for, only the exact value tells the side.
TEST(DecimalDigits, HalvesAreDecidedByTheExactValue) {
  const struct {
    double value;
    std::int32_t digits;
    std::string_view expected;
  } rows[] = {{0.125, 2, "12"},                    // a true tie goes to the even digit
              {0.375, 2, "38"},  {1.005, 3, "1"},  // a little less than 1.005
              {1.015, 3, "101"},                   // likewise
              {1.025, 3, "102"},                   // likewise
              {1.145, 3, "115"},                   // a little more
              {9.995, 3, "999"},                   // a little less
              {9.9996, 4, "1"},  {5e-324, 15, "494065645841247"}};
  for (const auto& row : rows) EXPECT_EQ(DecimalDigits(row.value, row.digits).Digits(), row.expected) << row.value;
}

TEST(LeadingNumber, EndsWhereTheNumberEnds) {
  const struct {
    std::u16string_view text;
    double expected;
  } rows[] = {{u"2.75", 2.75},      {u"-2.75kg", -2.75}, {u"+.5", 0.5},   {u"1,5E+20", 1},
              {u"1.5E+20", 1.5e20}, {u"1d3", 1000},      {u"1e", 1},      {u"1e+", 1},
              {u"1e-x", 1},         {u"1.2.3", 1.2},     {u"1e2.5", 100}, {u" -\t1 234\n.5 0 e 1 0 ", -1234.5e10}};
  for (const auto& row : rows) EXPECT_EQ(LeadingNumber(row.text), row.expected) << ToUtf8(row.text);
  for (const std::u16string_view text :
       {u"", u"-", u".", u"-.e5", u"abc", u"--5", u"&H10", u"\u0661", u"1e-400", u"0e999999999999"})
    EXPECT_EQ(LeadingNumber(text), 0) << ToUtf8(text);
  EXPECT_TRUE(std::signbit(LeadingNumber(u"-0")));
}

TEST(LeadingNumber, TooLargeIsAnOverflow) {
  EXPECT_EQ(TextOrError([] { return std::to_string(LeadingNumber(u"-1e309")); }), "error 6");
}

}  // namespace
}  // namespace qzbase::tests
