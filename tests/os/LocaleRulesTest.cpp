#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/os/LocaleRules.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using os::LocaleRules;
using os::NamedLocaleRules;

template <std::size_t pCount>
std::string Joined(const std::array<std::u16string, pCount>& pNames) {
  std::string text;
  for (const std::u16string& name : pNames) text += ToUtf8(name) + "|";
  return text;
}

// The system's locales equal the table in every field, on all systems; no field may differ.
TEST(LocaleRules, AgreeWithTheTable) {
  for (const std::string_view name : kLocaleNames) {
    SCOPED_TRACE(name);
    const LocaleRules expected = TestLocale(name);
    const LocaleRules actual = NamedLocaleRules(name);
#define QZBASE_SAME_TEXT(pField) EXPECT_EQ(ToUtf8(actual.pField), ToUtf8(expected.pField)) << #pField
#define QZBASE_SAME(pField) EXPECT_EQ(actual.pField, expected.pField) << #pField
    QZBASE_SAME_TEXT(name);
    QZBASE_SAME_TEXT(decimal);
    QZBASE_SAME_TEXT(thousands);
    QZBASE_SAME(firstGroup);
    QZBASE_SAME(furtherGroups);
    QZBASE_SAME(decimals);
    QZBASE_SAME(leadingZero);
    QZBASE_SAME(negativeNumber);
    QZBASE_SAME_TEXT(positiveSign);
    QZBASE_SAME_TEXT(negativeSign);
    QZBASE_SAME_TEXT(listSeparator);
    QZBASE_SAME_TEXT(currency);
    QZBASE_SAME_TEXT(monetaryDecimal);
    QZBASE_SAME_TEXT(monetaryThousands);
    QZBASE_SAME(monetaryFirstGroup);
    QZBASE_SAME(monetaryFurtherGroups);
    QZBASE_SAME(monetaryDecimals);
    QZBASE_SAME(positiveCurrency);
    QZBASE_SAME(negativeCurrency);
    QZBASE_SAME_TEXT(dateSeparator);
    QZBASE_SAME_TEXT(timeSeparator);
    QZBASE_SAME_TEXT(shortDate);
    QZBASE_SAME_TEXT(longDate);
    QZBASE_SAME_TEXT(longTime);
    QZBASE_SAME_TEXT(shortTime);
    QZBASE_SAME(dateOrder);
    QZBASE_SAME_TEXT(am);
    QZBASE_SAME_TEXT(pm);
    QZBASE_SAME(firstDayOfWeek);
    QZBASE_SAME(firstWeekOfYear);
#undef QZBASE_SAME
#undef QZBASE_SAME_TEXT
    EXPECT_EQ(Joined(actual.days), Joined(expected.days));
    EXPECT_EQ(Joined(actual.shortDays), Joined(expected.shortDays));
    EXPECT_EQ(Joined(actual.months), Joined(expected.months));
    EXPECT_EQ(Joined(actual.shortMonths), Joined(expected.shortMonths));
    EXPECT_EQ(actual, expected) << "a field that the list above lacks";
  }
}

TEST(LocaleRules, UnknownLocalesAreInvariant) {
  for (const std::string_view name : {"", "xx-unknown", "no such locale", "\xC3\xA4"})
    EXPECT_EQ(NamedLocaleRules(name), LocaleRules()) << name;
}

TEST(LocaleRules, GroupsOfTwo) {
  const LocaleRules rules = NamedLocaleRules("hi-IN");
  EXPECT_EQ(rules.firstGroup, 3);
  EXPECT_EQ(rules.furtherGroups, 2);
}

// Whatever the locale and the system, the rules can be worked with.
TEST(LocaleRules, AreCompleteForLocalesOfAllKinds) {
  std::vector<LocaleRules> all = {os::UserLocaleRules()};
  for (const std::string_view name :
       {"ja-JP", "ar-EG", "fa-IR", "th-TH", "da-DK", "en-GB", "pt-BR", "ru-RU", "zh-CN", "de-DE-u-co-phonebk"})
    all.push_back(NamedLocaleRules(name));
  for (const LocaleRules& rules : all) {
    SCOPED_TRACE(ToUtf8(rules.name));
    for (const std::u16string* text :
         {&rules.decimal, &rules.negativeSign, &rules.listSeparator, &rules.currency, &rules.dateSeparator,
          &rules.timeSeparator, &rules.shortDate, &rules.longDate, &rules.longTime, &rules.shortTime})
      EXPECT_FALSE(text->empty()) << ToUtf8(rules.shortDate);
    for (const std::u16string& month : rules.months) EXPECT_FALSE(month.empty());
    for (const std::u16string& day : rules.days) EXPECT_FALSE(day.empty());
    for (const char16_t field : {u'd', u'M', u'y'}) EXPECT_NE(rules.shortDate.find(field), std::u16string::npos);
    EXPECT_NE(rules.shortTime.find(u"mm"), std::u16string::npos) << ToUtf8(rules.shortTime);
    EXPECT_EQ(rules.shortTime.find(u's'), std::u16string::npos) << ToUtf8(rules.shortTime);
    EXPECT_TRUE(rules.firstDayOfWeek >= 0 && rules.firstDayOfWeek <= 6);
  }
}

}  // namespace
}  // namespace qzbase::tests
