#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/os/LocaleRules.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using os::LocaleRules;
using os::NamedLocaleRules;

// The system's locales equal the table in every field, on all systems.
TEST(LocaleRules, AgreeWithTheTable) {
  for (const std::string_view name : kLocaleNames) EXPECT_EQ(NamedLocaleRules(name), TestLocale(name)) << name;
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
