// In every locale of the system: what is written is accepted by the check of its type and reads back equal.
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/runtime/Compare.h"
#include "qzbase/runtime/DatePattern.h"
#include "qzbase/runtime/NumberPattern.h"
#include "qzbase/text/ValueCheck.h"
#include "qzbase/text/ValueReader.h"
#include "qzbase/text/ValueText.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using namespace ModConvert;
using os::LocaleRules;
using runtime::Date;
using runtime::DateParts;
using runtime::Variant;

// Everything that delimits or separates anywhere.
constexpr std::u16string_view kDelimiterCharacters = u" .,:/-$'\u00A0\u060C\u2019\u200E\u200F\u202F\u2E41\u066B\u066C";

struct Law {
  std::string name;
  LocaleRules rules = os::NamedLocaleRules(name);

  void Delimiters() const {
    for (const std::u16string* text : {&rules.decimal, &rules.thousands, &rules.monetaryDecimal,
                                       &rules.monetaryThousands, &rules.dateSeparator, &rules.timeSeparator}) {
      EXPECT_FALSE(text->empty()) << name;
      EXPECT_EQ(text->find_first_not_of(kDelimiterCharacters), std::u16string::npos) << name << " " << ToUtf8(*text);
    }
    EXPECT_NE(rules.decimal, rules.thousands) << name;
    EXPECT_NE(rules.monetaryDecimal, rules.monetaryThousands) << name;
  }

  void Numbers() const {
    for (const double number : {0.0, 7.0, -1.0, 0.5, -0.25, 1234567.25, -1234.5, 123456789012345.0, 1e15, -1.25e300,
                                3.33333333333333e-7, 1e-300})
      for (const bool localized : {true, false})
        Holds(number, EVTDouble, DoubleToString(number, u"", localized, rules), u"", localized);
    for (const double number : {-1234567.25, 0.0, 0.5, 1000.0, 1e12}) {
      Holds(number, EVTDouble, DoubleToString(number, u"0.00", true, rules));
      const std::u16string grouped = runtime::FormatNumber(number, u"Standard", rules);
      EXPECT_EQ(StringToDouble(grouped, true, rules), number) << name << " [" << ToUtf8(grouped) << "]";
    }
    for (const std::int32_t number : {0, -1, 1000, 2147483647, -2147483647})
      for (const std::u16string_view format : {u"", u"General Number", u"0000"})
        Holds(number, EVTLong, LongToString(number, format, rules));
  }

  // Large amounts are grouped, which the checks refuse.
  void Money() const {
    for (const double amount : {0.0, 5.0, -7.0, 999.25, -0.75, 1234567.25, -1000.0}) {
      if (amount != std::round(amount) && rules.monetaryDecimals < 2) continue;
      const std::u16string text = runtime::FormatNumber(amount, u"Currency", rules);
      EXPECT_EQ(StringToDouble(text, true, rules), amount) << name << " [" << ToUtf8(text) << "]";
      const bool isRefused = ErrorOf([&] { CheckDouble(text, false, true, rules); }) != 0;
      EXPECT_EQ(isRefused, std::fabs(amount) >= 1000) << name << " [" << ToUtf8(text) << "]";
    }
  }

  void Words() const {
    for (const bool truth : {true, false})
      for (const std::u16string_view words : {u"", u"{On;Off}"})
        Holds(truth, EVTBoolean, BoolToString(truth, words), words);
    constexpr std::u16string_view kItems = u"{a;\u00C4;}";
    for (const std::int32_t item : {1, 2, 3}) Holds(item, EVTEnum, EnumToString(item, kItems), kItems);
  }

  void Days() const {
    for (std::int32_t month = 1; month <= 12; ++month) {
      DateParts day = {.year = 1996 + 3 * month - month % 2 * 60, .month = month, .day = month * 9 % 28 + 1};
      for (const std::u16string_view format : {u"", u"Long Date", u"d mmmm yyyy"}) DateHolds(day, format);
      day.hour = month * 7 % 24;
      day.minute = month;
      DateHolds(day, u"ddddd hh:nn");
      day.second = 58 - month;
      DateHolds(day, u"");
    }
    if (rules.shortDate.find(u"yyyy") == std::u16string::npos) return;
    DateHolds({.year = 100, .month = 1, .day = 1}, u"");
    DateHolds({.year = 9999, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 59}, u"");
  }

  void Times() const {
    for (const std::int32_t minute : {1, 65, 8 * 60 + 5, 9 * 60 + 45, 10 * 60 + 11, 12 * 60, 20 * 60 + 15, 1439}) {
      DateParts time = {.hour = minute / 60, .minute = minute % 60};
      for (const std::u16string_view format : {u"Short Time", u"Medium Time"}) DateHolds(time, format);
      time.second = 12;
      for (const std::u16string_view format : {u"", u"hh:nn:ss"}) DateHolds(time, format);
    }
  }

  // What is written, checked and read.
  void Holds(const Variant& pValue, QZVarType pType, std::u16string_view pText, std::u16string_view pWords = {},
             bool pLocalized = true) const {
    EXPECT_EQ(ErrorOf([&] { CheckValue(pText, pType, u"", u"", pWords, pLocalized, false, rules); }), 0)
        << name << " [" << ToUtf8(pText) << "]";
    const Variant read = StringToValue(pText, pType, pWords, pLocalized, rules);
    EXPECT_EQ(runtime::Compare(read, pValue), runtime::Order::Equal)
        << name << " [" << ToUtf8(pText) << "] is " << CorpusValueText(read);
  }
  void DateHolds(const DateParts& pParts, std::u16string_view pFormat) const {
    const Date date = runtime::MakeDate(pParts);
    Holds(date, EVTDate, DateToString(date, pFormat, rules));
  }
};

TEST(LocaleLaw, WhatIsWrittenCanBeRead) {
  const std::vector<std::string> names = os::LocaleNames();
  EXPECT_GT(names.size(), 100U);
  for (const std::string& name : names) {
    const Law law{name};
    law.Delimiters();
    law.Numbers();
    law.Money();
    law.Words();
    law.Days();
    law.Times();
  }
}

}  // namespace
}  // namespace qzbase::tests
