// In every locale of the system: what is written is accepted by the check of its type and reads back equal.
#include <algorithm>
#include <cmath>
#include <iterator>
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

constexpr std::u16string_view kTimeFormats[] = {u"", u"hh:nn:ss"};
constexpr std::u16string_view kMinuteFormats[] = {u"Short Time", u"Medium Time"};
constexpr std::u16string_view kDateFormats[] = {u"", u"Long Date", u"d mmmm yyyy"};

class Law {
 public:
  explicit Law(const std::string& pName) : name_(pName), rules_(os::NamedLocaleRules(pName)) {}

  void Delimiters() const;
  void Numbers() const;
  void Money() const;
  void Words() const;
  void Days() const;
  void Times() const;

 private:
  // What is written, checked and read.
  void Holds(const Variant& pValue, QZVarType pType, std::u16string_view pText, std::u16string_view pWords = {},
             bool pLocalized = true) const {
    EXPECT_EQ(ErrorOf([&] { CheckValue(pText, pType, u"", u"", pWords, pLocalized, false, rules_); }), 0)
        << name_ << " [" << ToUtf8(pText) << "]";
    const Variant read = StringToValue(pText, pType, pWords, pLocalized, rules_);
    EXPECT_EQ(runtime::Compare(read, pValue), runtime::Order::Equal)
        << name_ << " [" << ToUtf8(pText) << "] is " << CorpusValueText(read);
  }
  void DateHolds(const DateParts& pParts, std::u16string_view pFormat) const {
    const Date date = runtime::MakeDate(pParts);
    Holds(date, EVTDate, DateToString(date, pFormat, rules_));
  }

  std::string name_;
  LocaleRules rules_;
};

void Law::Delimiters() const {
  for (const std::u16string* text : {&rules_.decimal, &rules_.thousands, &rules_.monetaryDecimal,
                                     &rules_.monetaryThousands, &rules_.dateSeparator, &rules_.timeSeparator}) {
    EXPECT_FALSE(text->empty()) << name_;
    EXPECT_EQ(text->find_first_not_of(kDelimiterCharacters), std::u16string::npos) << name_ << " " << ToUtf8(*text);
  }
  EXPECT_NE(rules_.decimal, rules_.thousands) << name_;
  EXPECT_NE(rules_.monetaryDecimal, rules_.monetaryThousands) << name_;
}

void Law::Numbers() const {
  for (const double number : {0.0, 7.0, -1.0, 0.5, -0.25, 1234567.25, -1234.5, 123456789012345.0, 1e15, -1.25e300,
                              3.33333333333333e-7, 1e-300}) {
    for (const bool localized : {true, false})
      Holds(number, EVTDouble, DoubleToString(number, u"", localized, rules_), u"", localized);
  }
  for (const double number : {0.0, 0.5, -1234567.25, 1e12}) {
    const std::u16string grouped = runtime::FormatNumber(number, u"Standard", rules_);
    EXPECT_EQ(StringToDouble(grouped, true, rules_), number) << name_ << " [" << ToUtf8(grouped) << "]";
  }
  for (const double number : {-1234567.25, 0.5, 1000.0})
    Holds(number, EVTDouble, DoubleToString(number, u"0.00", true, rules_));
  for (const std::int32_t number : {0, -1, 1000, 2147483647, -2147483647})
    for (const std::u16string_view format : {u"", u"General Number", u"0000"})
      Holds(number, EVTLong, LongToString(number, format, rules_));
}

// Large amounts are grouped, which the checks refuse.
void Law::Money() const {
  for (const double amount : {0.0, 5.0, -7.0, 999.25, -0.75, 1234567.25, -1000.0}) {
    if (amount != std::round(amount) && rules_.monetaryDecimals < 2) continue;
    const std::u16string text = runtime::FormatNumber(amount, u"Currency", rules_);
    if (std::fabs(amount) < 1000) {
      Holds(amount, EVTDouble, text);
      continue;
    }
    EXPECT_NE(ErrorOf([&] { CheckDouble(text, false, true, rules_); }), 0) << name_ << " [" << ToUtf8(text) << "]";
    EXPECT_EQ(StringToDouble(text, true, rules_), amount) << name_ << " [" << ToUtf8(text) << "]";
  }
}

void Law::Words() const {
  for (const bool truth : {true, false})
    for (const std::u16string_view words : {u"", u"{On;Off}"}) {
      const std::u16string text = BoolToString(truth, words);
      Holds(truth, EVTBoolean, text, words);
    }
  constexpr std::u16string_view kItems = u"{a;\u00C4;}";
  for (const std::int32_t item : {1, 2, 3}) Holds(item, EVTEnum, EnumToString(item, kItems), kItems);
}

void Law::Days() const {
  for (std::int32_t month = 1; month <= 12; ++month) {
    const DateParts day = {.year = 1996 + 3 * month - month % 2 * 60, .month = month, .day = month * 9 % 28 + 1};
    DateParts evening = day;
    evening.hour = month * 7 % 24;
    evening.minute = month;
    for (const std::u16string_view format : kDateFormats) DateHolds(day, format);
    DateHolds(evening, u"ddddd hh:nn");
    evening.second = 58 - month;
    DateHolds(evening, u"");
  }
  if (rules_.shortDate.find(u"yyyy") == std::u16string::npos) return;
  DateHolds({.year = 100, .month = 1, .day = 1}, u"");
  DateHolds({.year = 9999, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 59}, u"");
}

void Law::Times() const {
  for (const std::int32_t minute : {1, 65, 8 * 60 + 5, 9 * 60 + 45, 10 * 60 + 11, 12 * 60, 20 * 60 + 15, 24 * 60 - 1}) {
    DateParts time = {.hour = minute / 60, .minute = minute % 60};
    for (const std::u16string_view format : kMinuteFormats) DateHolds(time, format);
    time.second = 12;
    for (const std::u16string_view format : kTimeFormats) DateHolds(time, format);
  }
}

TEST(LocaleLaw, WhatIsWrittenCanBeRead) {
  const std::vector<std::string> names = os::LocaleNames();
  EXPECT_GT(names.size(), 100U);
  for (const std::string& name : names) {
    const Law law(name);
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
