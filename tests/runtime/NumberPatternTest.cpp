// Numbers, texts and odd values through number patterns, named formats and the locale's styles.
#include <cmath>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "qzbase/runtime/Format.h"
#include "qzbase/runtime/NumberPattern.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {
namespace {

using runtime::Format;
using runtime::FormatNumber;
using runtime::NumberStyle;
using runtime::Variant;

// "digits,leading,parentheses,grouping"
NumberStyle StyleOf(const CorpusRow& pRow) {
  NumberStyle style;
  const std::string& api = pRow["api"];
  if (api == "VarFormatPercent") style.kind = NumberStyle::Kind::Percent;
  if (api == "VarFormatCurrency") style.kind = NumberStyle::Kind::Currency;
  std::istringstream arguments(pRow["args"]);
  char comma = 0;
  arguments >> style.digits >> comma >> style.leadingZero >> comma >> style.parentheses >> comma >> style.grouping;
  return style;
}

TEST(NumberPattern, AnswersAsTheTableOfFormats) {
  CheckTable("number_format.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    const std::optional<Variant> value = ParseCorpusValue(pRow["value"]);
    if (!value) return {};
    const auto& rules = TestLocale(pRow["locale"]);
    return Comparison{pRow.Expected("text"), TextOrError([&] {
                        return ToUtf8(pRow["api"] == "VarFormat"
                                          ? Format(*value, pRow.Text("pattern"), rules)
                                          : FormatNumber(*value->If<double>(), StyleOf(pRow), rules));
                      })};
  });
}

TEST(NumberPattern, DatesGoThroughNumberPatternsAsDayCounts) {
  CheckTable("date_format.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    if (!pRow["doubt"].starts_with("number pattern on a Date")) return {};
    const Variant date(runtime::Date{pRow.DoubleFromBits("value_bits")});
    return Comparison{pRow.Expected("text"), ToUtf8(Format(date, pRow.Text("pattern"), TestLocale(pRow["locale"])))};
  });
}

// Halves of the last place and their neighbours, through patterns of places alone and the same with an empty literal,
// which sends them the long way.
TEST(NumberPattern, TheShortWayPrintsWhatTheLongWayDoes) {
  std::mt19937_64 random(17);
  const auto& rules = TestLocale("de-DE");
  for (int i = 0; i < 20000; ++i) {
    double value = (static_cast<double>(random() % 1'000'000) + 0.5) / std::pow(10, random() % 16);
    for (std::uint64_t steps = random() % 4; steps > 0; --steps) value = std::nextafter(value, 0);
    if (i % 2 != 0) value = -value;
    for (const std::u16string pattern : {u"0", u"#.##", u".0##", u"000.00", u"#0.0000#", u"0.0000000000000000"})
      ASSERT_EQ(ToUtf8(Format(value, pattern, rules)), ToUtf8(Format(value, pattern + u"\"\"", rules)))
          << ToUtf8(pattern) << " " << std::hexfloat << value;
  }
}

TEST(NumberPattern, RefusesWhatIsNoNumberPattern) {
  for (const char16_t* pattern : {u"0;0;0;0;0", u"dd.mm.yyyy", u"Long Date", u"@@"})
    EXPECT_EQ(TextOrError([&] { return ToUtf8(FormatNumber(1.0, pattern)); }), "error 5") << ToUtf8(pattern);
  EXPECT_EQ(TextOrError([] { return ToUtf8(FormatNumber(1.0, NumberStyle{.digits = 10})); }), "error 5");
  EXPECT_EQ(TextOrError([] { return ToUtf8(Format(Variant(nullptr), u"0")); }), "error 91");
}

// Money keeps its place beside the number when parentheses are asked for or forbidden.
TEST(NumberPattern, StylesFollowTheLocale) {
  using Kind = NumberStyle::Kind;
  const std::tuple<const char*, NumberStyle, const char*> rows[] = {
      {"fr-FR", {.kind = Kind::Currency, .digits = 1, .parentheses = 0, .grouping = 0}, "-1234,5 €"},
      {"de-DE", {.kind = Kind::Currency, .digits = 1, .parentheses = -1, .grouping = -1}, "(1.234,5 €)"},
      {"sv-SE", {.kind = Kind::Percent, .digits = 0, .grouping = 0}, "-123450%"},
      {"de-CH", {.digits = 0, .parentheses = -1, .grouping = 0}, "(1235)"}};
  for (const auto& [locale, style, text] : rows)
    EXPECT_EQ(ToUtf8(FormatNumber(-1234.5, style, TestLocale(locale))), text) << locale;
  os::LocaleRules indian;
  indian.furtherGroups = 2;
  indian.negativeNumber = 4;
  EXPECT_EQ(FormatNumber(-12345678.0, NumberStyle{.digits = 0}, indian), u"1,23,45,678 -");
}

TEST(NumberPattern, OtherKindsOfValues) {
  const std::tuple<Variant, const char16_t*, const char16_t*> rows[] = {
      {u"abc", u"!@@@@@", u"abc  "},
      {u"abc", u"&&&&&", u"abc"},
      {u"abc", u"@@-@@", u" a-bc"},
      {u"abcdef", u"@-@", u"a-bcdef"},
      {u"ÄŸŽΩЯЁbc", u"<", u"äÿžωяёbc"},
      {u"Äbc", u">", u"ÄBC"},
      {u"", u"@@;\"none\"", u"none"},
      {u"abc", u"\"[\"@@@]", u"[abc]"},
      {u"1,234.5", u"0.00", u"1234.50"},
      {u"", u"0.00", u""},
      {{}, u"0.00", u"0.00"},
      {{}, u"General Number", u""},
      {0.1F, u"0.000000000000", u"0.100000000000"},
      {3e6, u"yyyy", u"3000000"},  // no day of the calendar
      {-657434.5, u"yyyy hh", u"100 12"},
      {2958465.9999999, u"yyyy", u"2958465.9999999"}};
  const auto& rules = TestLocale("en-US");
  for (const auto& [value, pattern, text] : rows)
    EXPECT_EQ(ToUtf8(Format(value, pattern, rules)), ToUtf8(text)) << ToUtf8(pattern);
  EXPECT_EQ(FormatNumber(1e308, u"#,##0", rules).size(), 309U + 102U);
  EXPECT_EQ(FormatNumber(std::nan(""), u"0.00", rules), FormatNumber(std::nan(""), u"", rules));
}

}  // namespace
}  // namespace qzbase::tests
