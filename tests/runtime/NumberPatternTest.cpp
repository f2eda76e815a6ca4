// Numbers, texts and odd values through number patterns, named formats and the locale's styles.
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Format.h"
#include "qzbase/runtime/NumberPattern.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using runtime::AutomationError;
using runtime::Format;
using runtime::FormatNumber;
using runtime::NumberStyle;
using runtime::RuntimeError;
using runtime::Variant;

// The value of a row such as "R8:3ff0000000000000"; none for kinds that a variant does not have (money, decimals,
// 64-bit numbers, error codes).
std::optional<Variant> ValueOf(const std::string& pText) {
  const std::string kind = pText.substr(0, pText.find(':'));
  const std::string content = pText.substr(std::min(kind.size() + 1, pText.size()));
  if (kind == "EMPTY") return Variant();
  if (kind == "NULL") return Variant(runtime::Null());
  if (kind == "BSTR") return Variant(FromUtf8(content));
  if (kind == "R8") return Variant(std::bit_cast<double>(std::uint64_t{std::stoull(content, nullptr, 16)}));
  if (kind == "R4") return Variant(std::bit_cast<float>(static_cast<std::uint32_t>(std::stoul(content, nullptr, 16))));
  if (kind == "BOOL") return Variant(content != "0");
  if (kind == "I4") return Variant(std::int32_t{std::stoi(content)});
  if (kind == "I2" || kind == "UI1") return Variant(static_cast<std::int16_t>(std::stoi(content)));
  return std::nullopt;
}

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

std::string ErrorText(RuntimeError pError) {
  return "error " + std::to_string(static_cast<std::int32_t>(pError));
}

std::string ExpectedText(const CorpusRow& pRow) {
  const std::string& result = pRow["hr"];
  if (!pRow["documented"].empty()) return pRow["documented"];
  if (result == "00000000") return pRow["text"];
  if (result == "80020005") return ErrorText(RuntimeError::TypeMismatch);
  return ErrorText(result == "8002000a" ? RuntimeError::Overflow : RuntimeError::InvalidArgument);
}

template <class Function>
std::string TextOrError(Function pFunction) {
  try {
    return ToUtf8(pFunction());
  } catch (const AutomationError& error) {
    return "error " + std::to_string(error.Number());
  }
}

TEST(NumberPattern, AnswersAsTheTableOfFormats) {
  Disagreements disagreements("number_format.tsv");
  for (const CorpusRow& row : Corpus("number_format.tsv")) {
    const std::optional<Variant> value = ValueOf(row["value"]);
    if (!row.IsSettled() || !value) continue;
    const auto& rules = TestLocale(row["locale"]);
    const std::u16string pattern = row.Text("pattern");
    const bool throughPattern = row["api"] == "VarFormat";
    const std::string actual = TextOrError([&] {
      return throughPattern ? Format(*value, pattern, rules) : FormatNumber(*value->If<double>(), StyleOf(row), rules);
    });
    disagreements.Checked();
    if (actual != ExpectedText(row))
      disagreements.Add(row, row["value_g17"] + " " + row["value"] + " through " + row["pattern"] + row["args"],
                        ExpectedText(row), actual);
  }
}

TEST(NumberPattern, DatesGoThroughNumberPatternsAsDayCounts) {
  Disagreements disagreements("date_format.tsv, number patterns");
  for (const CorpusRow& row : Corpus("date_format.tsv")) {
    if (!row["doubt"].starts_with("number pattern on a Date") || !row.IsSettled()) continue;
    const runtime::Date date{row.DoubleFromBits("value_bits")};
    const std::string actual = ToUtf8(Format(Variant(date), row.Text("pattern"), TestLocale(row["locale"])));
    disagreements.Checked();
    if (actual != ExpectedText(row))
      disagreements.Add(row, row["value_g17"] + " through " + row["pattern"], ExpectedText(row), actual);
  }
}

TEST(NumberPattern, PrintsWhatTheTableLacks) {
  struct Row {
    double value;
    const char16_t* pattern;
    const char16_t* text;
  };
  constexpr Row kRows[] = {
      // Places between literals, grouped and not.
      {1234567, u"#,##0-00", u"1,234,5-67"},
      {1234567, u"#,##0\"x\"000", u"1,234,x567"},
      {7, u"0#", u"07"},
      {0.5, u"#.0#0", u".500"},
      {1.5, u"0. 0", u"1. 5"},
      // Division by thousand, on either side of the point, and hundreds from every "%".
      {1234567, u"0,,", u"1"},
      {1500, u"0.0,", u"1.5"},
      {1234567.8, u"#,##0.00,0", u"1,234,567.800"},
      {0.25, u"\"%\"0%", u"%25%"},
      {0.25, u"0%%", u"2500%%"},
      // Exponents: rounding up to the next power of ten, no integer place, and marks that are no exponent.
      {999.96, u"##0.0E+0", u"100.0E+1"},
      {1234, u".00E+0", u".12E+4"},
      {-0.00125, u"0.0e-000", u"-1.3e-003"},
      {12, u"0 Eur", u"12 Eur"},
      {0.05, u"0.0E+0%", u"5.0E+0%"},
      // Date letters and text marks behind the first digit place are literals, in later sections too.
      {2.5, u"0.00 mm", u"2.50 mm"},
      {-2.5, u"0.0;[Red]0.0", u"[Red]2.5"},
      {2.5, u"0.0 <@>", u"2.5 <@>"},
      {-2.5, u"\"+\";@0.0", u"@2.5"},
      // The minus stands before literals; a section of literals has none.
      {-1, u"(0) kg", u"-(1) kg"},
      {-1, u"\"none\"", u"none"},
      {-0.004, u"0.00;(0.00);zero", u"(0.00)"},
      // Quotes and backslashes hide section marks.
      {-3, u"0\\;;\"a;\"0", u"a;3"},
      {1e300, u"0E+0", u"1E+300"},
      {5e-324, u"0.0E+0", u"4.9E-324"},
      {std::numeric_limits<double>::max(), u"0.00E+00", u"1.80E+308"},
  };
  const auto& rules = TestLocale("en-US");
  for (const Row& row : kRows)
    EXPECT_EQ(ToUtf8(FormatNumber(row.value, row.pattern, rules)), ToUtf8(row.text)) << ToUtf8(row.pattern);
  EXPECT_EQ(FormatNumber(1e308, u"#,##0", rules).size(), 309U + 102U);
}

TEST(NumberPattern, RefusesWhatIsNoNumberPattern) {
  for (const char16_t* pattern : {u"0;0;0;0;0", u"dd.mm.yyyy", u"Long Date", u"@@"})
    EXPECT_EQ(TextOrError([&] { return FormatNumber(1.0, pattern); }), ErrorText(RuntimeError::InvalidArgument))
        << ToUtf8(pattern);
  EXPECT_EQ(TextOrError([] { return FormatNumber(1.0, NumberStyle{.digits = 10}); }),
            ErrorText(RuntimeError::InvalidArgument));
  EXPECT_EQ(TextOrError([] { return Format(Variant(nullptr), u"0"); }), ErrorText(RuntimeError::ObjectNotSet));
}

// Money keeps its place beside the number when parentheses are asked for or forbidden.
TEST(NumberPattern, StylesFollowTheLocale) {
  struct Row {
    const char* locale;
    NumberStyle style;
    const char* text;
  };
  using Kind = NumberStyle::Kind;
  const Row rows[] = {
      {"fr-FR", {.kind = Kind::Currency, .digits = 1, .parentheses = 0, .grouping = 0}, "-1234,5 €"},
      {"de-DE", {.kind = Kind::Currency, .digits = 1, .parentheses = -1, .grouping = -1}, "(1.234,5 €)"},
      {"sv-SE", {.kind = Kind::Percent, .digits = 0, .grouping = 0}, "-123450%"},
      {"de-CH", {.digits = 0, .parentheses = -1, .grouping = 0}, "(1235)"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ToUtf8(FormatNumber(-1234.5, row.style, TestLocale(row.locale))), row.text) << row.locale;
  }
  os::LocaleRules indian;
  indian.furtherGroups = 2;
  indian.negativeNumber = 4;
  EXPECT_EQ(FormatNumber(-12345678.0, NumberStyle{.digits = 0}, indian), u"1,23,45,678 -");
}

TEST(NumberPattern, TextsGoThroughTheirOwnPatterns) {
  struct Row {
    const char16_t* text;
    const char16_t* pattern;
    const char16_t* expected;
  };
  constexpr Row kRows[] = {
      {u"abc", u"@@@@@", u"  abc"}, {u"abc", u"!@@@@@", u"abc  "},     {u"abc", u"&&&&&", u"abc"},
      {u"abc", u"@@-@@", u" a-bc"}, {u"abcdef", u"@-@", u"a-bcdef"},   {u"Äbc", u">", u"ÄBC"},
      {u"ÄŸŽΩЯЁ", u"<", u"äÿžωяё"}, {u"", u"@@;\"none\"", u"none"},    {u"abc", u"\"[\"@@@]", u"[abc]"},
      {u"abc", u"0.00", u"abc"},    {u"1,234.5", u"0.00", u"1234.50"}, {u"", u"0.00", u""},
  };
  const auto& rules = TestLocale("en-US");
  for (const Row& row : kRows)
    EXPECT_EQ(ToUtf8(Format(Variant(row.text), row.pattern, rules)), ToUtf8(row.expected)) << ToUtf8(row.pattern);
}

TEST(NumberPattern, OtherKindsOfValues) {
  const auto& rules = TestLocale("en-US");
  EXPECT_EQ(Format(Variant(), u"0.00", rules), u"0.00");
  EXPECT_EQ(Format(Variant(0.1F), u"0.000000000000", rules), u"0.100000000000");
  EXPECT_EQ(Format(Variant(runtime::Null()), u"0;0;0;-", rules), u"-");
  EXPECT_EQ(Format(Variant(3e6), u"yyyy", rules), u"3000000");  // no day of the calendar
  EXPECT_EQ(Format(Variant(-657434.5), u"yyyy hh", rules), u"100 12");
  EXPECT_EQ(Format(Variant(2958465.9999999), u"yyyy", rules), u"2958465.9999999");
  EXPECT_EQ(FormatNumber(std::nan(""), u"0.00", rules), FormatNumber(std::nan(""), u"", rules));
}

}  // namespace
}  // namespace qzbase::tests
