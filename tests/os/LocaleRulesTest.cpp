// The rules that the system gives for a locale, the same on every system.
#include <gtest/gtest.h>

#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

class NamedLocale : public testing::TestWithParam<std::string_view> {};

TEST_P(NamedLocale, HasTheRulesOfTheTable) {
  const os::LocaleRules rules = os::NamedLocaleRules(GetParam());
  const os::LocaleRules& expected = TestLocale(GetParam());
  const auto same = [](const char* pItem, const std::u16string& pActual, const std::u16string& pExpected) {
    EXPECT_EQ(ToUtf8(pActual), ToUtf8(pExpected)) << pItem;
  };
  same("decimal", rules.decimal, expected.decimal);
  same("thousands", rules.thousands, expected.thousands);
  same("list separator", rules.listSeparator, expected.listSeparator);
  same("currency", rules.currency, expected.currency);
  same("short date", rules.shortDate, expected.shortDate);
  same("long date", rules.longDate, expected.longDate);
  same("long time", rules.longTime, expected.longTime);
  same("short time", rules.shortTime, expected.shortTime);
  for (std::size_t i = 0; i < rules.months.size(); ++i) {
    same("month", rules.months[i], expected.months[i]);
    same("short month", rules.shortMonths[i], expected.shortMonths[i]);
  }
  for (std::size_t i = 0; i < rules.days.size(); ++i) {
    same("day", rules.days[i], expected.days[i]);
    same("short day", rules.shortDays[i], expected.shortDays[i]);
  }
  EXPECT_TRUE(rules == expected) << "another field differs";
}

INSTANTIATE_TEST_SUITE_P(Locales, NamedLocale, testing::ValuesIn(kLocaleNames), [](const auto& pInfo) {
  std::string name(pInfo.param);
  name[2] = '_';
  return name;
});

TEST(LocaleRules, OfAnUnknownLocaleAreTheInvariantOnes) {
  EXPECT_TRUE(os::NamedLocaleRules("xx-none-such") == os::LocaleRules());
  EXPECT_FALSE(os::UserLocaleRules().decimal.empty());
}

}  // namespace
}  // namespace qzbase::tests
