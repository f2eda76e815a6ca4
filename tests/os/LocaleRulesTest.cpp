#include <string_view>

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

}  // namespace
}  // namespace qzbase::tests
