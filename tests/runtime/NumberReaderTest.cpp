#include <bit>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <random>

#include <gtest/gtest.h>

#include "qzbase/runtime/NumberReader.h"
#include "qzbase/runtime/NumberText.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

template <typename T>
T NumberIn(const std::string& pField) {
  T value{};
  std::from_chars(pField.data(), pField.data() + pField.size(), value);
  return value;
}

std::string Shown(ReadResult pResult, double pValue) {
  if (pResult == ReadResult::NotANumber) return "80020005";
  if (pResult == ReadResult::Overflow) return "8002000a";
  std::string text(40, '\0');
  text.resize(static_cast<std::size_t>(std::snprintf(text.data(), text.size(), "%.17g", pValue)));
  return text;
}

// What a row expects, as `Shown` shows what was read.
template <typename T>
std::string Expected(const CorpusRow& pRow, T pAnswer) {
  if (!pRow["documented"].empty()) return Shown(ReadResult::Read, static_cast<double>(NumberIn<T>(pRow["documented"])));
  return pRow["hr"] == "00000000" ? Shown(ReadResult::Read, static_cast<double>(pAnswer)) : pRow["hr"];
}

template <typename T>
std::string Actual(std::u16string_view pText, const LocaleRules& pRules) {
  T value = -77;
  const ReadResult result = ReadNumber(pText, value, pRules);
  EXPECT_TRUE(result == ReadResult::Read || value == -77) << "written though not read: " << ToUtf8(pText);
  return Shown(result, static_cast<double>(value));
}

// Left out of the doubles: of more than 30 digits the platform's answer is not the nearest double, as in the rows of
// fewer digits where the nearest is documented; and what is documented for the last one forgets that its comma or point
// groups thousands (the number is 1.8E+324).
bool IsLeftOut(const CorpusRow& pRow) {
  const std::string_view grouped = pRow["locale"] == "en-US"   ? "1,7976931348623157e308"
                                   : pRow["locale"] == "de-DE" ? "1.7976931348623157e308"
                                                               : "";
  return pRow["text"] == "1234567890123456789012345678901" ||
         pRow["text"] == "1111111111111111111111111111111111111111" || pRow["text"] == grouped;
}

TEST(NumberReader, DoublesAsThePlatformReadsThem) {
  CheckTable("parse_double.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    if (IsLeftOut(pRow)) return {};
    return Comparison{Expected(pRow, pRow["hr"] == "00000000" ? pRow.DoubleFromBits("value_bits") : 0.0),
                      Actual<double>(pRow.Text("text"), TestLocale(pRow["locale"]))};
  });
}

TEST(NumberReader, LongsAsThePlatformReadsThem) {
  CheckTable("parse_long.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    return Comparison{Expected(pRow, NumberIn<std::int32_t>(pRow["value"])),
                      Actual<std::int32_t>(pRow.Text("text"), TestLocale(pRow["locale"]))};
  });
}

// Combinations the tables do not show, as the platform answers them but where a row says otherwise.
TEST(NumberReader, MarksInUnusualPlaces) {
  const struct {
    std::string_view locale;
    std::u16string_view text;
    std::string_view asDouble, asLong;
  } rows[] = {
      {"en-US", u"$ - 1", "-1", "-1"},
      {"en-US", u"-$(1) +", "-1", "-1"},
      {"en-US", u"1e5$", "100000", "100000"},
      {"en-US", u"(&H10)", "-16", "-16"},
      {"en-US", u"&HFFFFFFFF", "-1", "-1"},  // 32 bits are a signed integer
      {"en-US", u"-&H80000000", "2147483648", "8002000a"},
      {"en-US", u".,5", "0.5", "0"},
      {"en-US", u"1,.2", "1.2", "1"},
      {"en-US", u"1.5e1,5", "15.5", "16"},
      {"en-US", u"1-,", "-1", "-1"},
      {"en-US", u"\u30001\u2028", "1", "1"},
      {"en-US", u"0e99999999999999999999", "0", "0"},
      {"en-US", u"1e99999999999999999999", "8002000a", "8002000a"},
      {"en-US", u"1e-99999999999999999999", "0", "0"},
      {"en-US", u".08", "0.080000000000000002", "0"},  // the platform rounds such long values up
      {"de-CH", u"chf1", "80020005", "80020005"},
      {"sv-SE", u"1kr 2", "80020005", "80020005"},
      {"fr-FR", u"1 234\u00A0567\u202F890,5", "1234567890.5", "1234567890"},
      {"fr-FR", u"&H10\u00A0", "16", "16"},  // a blank also where it could group
      {"sv-SE", u"kr1 2 kr", "12", "12"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Actual<double>(row.text, TestLocale(row.locale)), row.asDouble) << ToUtf8(row.text);
    EXPECT_EQ(Actual<std::int32_t>(row.text, TestLocale(row.locale)), row.asLong) << ToUtf8(row.text);
  }
}

// The platform takes the last two, for it does not count parentheses and signs there.
TEST(NumberReader, MarksThatSpoilANumber) {
  for (const std::u16string_view text :
       {u"-1-", u"+1+", u"$$1", u"$1e5", u"$&H1", u",5", u"1e5.", u"1e.5", u"1-.", u"\u200B1", u"(1))", u"(1-"}) {
    EXPECT_EQ(Actual<double>(text, TestLocale("en-US")), "80020005") << ToUtf8(text);
    EXPECT_EQ(Actual<std::int32_t>(text, TestLocale("en-US")), "80020005") << ToUtf8(text);
  }
}

TEST(NumberReader, OwnSignsAndMonetaryDelimiters) {
  LocaleRules rules;
  rules.decimal = u"::";
  rules.negativeSign = u"\u2212";
  rules.monetaryDecimal = u";";
  for (const std::u16string_view text : {u"\u22121::5", u"-1::5", u"1;5\u2212"})
    EXPECT_EQ(Actual<double>(text, rules), "-1.5") << ToUtf8(text);
}

// The middle between 1 and the next double, and a one behind hundreds of zeros that leaves it.
TEST(NumberReader, RoundsHundredsOfDigitsCorrectly) {
  const std::u16string middle = u"1.00000000000000011102230246251565404236316680908203125";
  const LocaleRules rules;
  for (const std::size_t count : {0U, 100U, 700U, 800U, 5000U}) {
    const std::u16string zeros(count, u'0');
    EXPECT_EQ(Actual<double>(middle + zeros, rules), "1") << count;
    EXPECT_EQ(Actual<double>(middle + zeros + u"1", rules), "1.0000000000000002") << count;
    EXPECT_EQ(Actual<std::int32_t>(u"2.5" + zeros, rules), "2") << count;
    EXPECT_EQ(Actual<std::int32_t>(u"2.5" + zeros + u"1", rules), "3") << count;
  }
}

TEST(NumberReader, ReadsItsOwnTextsBack) {
  std::mt19937_64 random(20);
  for (const std::string_view locale : kLocaleNames) {
    const LocaleRules& rules = TestLocale(locale);
    for (int i = 0; i < 20000; ++i) {
      const auto bits = random();
      const double number =
          i % 2 == 0 ? std::bit_cast<double>(bits) : static_cast<double>(static_cast<std::int32_t>(bits)) / 1000;
      if (!std::isfinite(number)) continue;
      const std::u16string text = NumberText(number, rules);
      double value = 0;
      ASSERT_EQ(ReadNumber(text, value, rules), ReadResult::Read) << ToUtf8(text);
      ASSERT_EQ(NumberText(value, rules), text);
    }
  }
}

}  // namespace
}  // namespace qzbase::tests
