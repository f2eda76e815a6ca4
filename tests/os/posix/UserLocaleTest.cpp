// The user's locale as the environment names it.
#include <cstdlib>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "qzbase/os/LocaleRules.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

// Sets the variables of the locale for the length of a scope, all others of them away.
class ScopedEnvironment {
 public:
  explicit ScopedEnvironment(const std::map<std::string, std::string>& pValues) {
    for (const char* name : kNames)
      if (const char* value = std::getenv(name)) saved_[name] = value;
    Replace(pValues);
  }
  ~ScopedEnvironment() { Replace(saved_); }
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

 private:
  static constexpr const char* kNames[] = {"LC_ALL", "LC_COLLATE", "LC_NUMERIC", "LC_MONETARY", "LC_TIME", "LANG"};

  static void Replace(const std::map<std::string, std::string>& pValues) {
    for (const char* name : kNames) unsetenv(name);
    for (const auto& [name, value] : pValues) setenv(name.c_str(), value.c_str(), 1);
  }

  std::map<std::string, std::string> saved_;
};

TEST(UserLocale, IsTheOneThatTheEnvironmentNames) {
  const std::pair<std::map<std::string, std::string>, const char*> rows[] = {
      {{}, ""},  // the invariant rules
      {{{"LANG", "C.UTF-8"}}, ""},
      {{{"LANG", "POSIX"}}, ""},
      {{{"LANG", "xx_XX.UTF-8"}}, ""},
      {{{"LANG", "de_CH.UTF-8"}}, "de-CH"},
      {{{"LANG", "de_DE@euro"}}, "de-DE"},
      {{{"LANG", "sv_SE"}, {"LC_ALL", "fr_FR.UTF-8"}, {"LC_TIME", "C"}}, "fr-FR"},
      {{{"LANG", "sv_SE"}, {"LC_ALL", ""}}, "sv-SE"},
      {{{"LANG", "sv_SE"}, {"LC_ALL", "C"}}, ""}};
  for (const auto& [values, locale] : rows) {
    const ScopedEnvironment environment(values);
    EXPECT_EQ(os::UserLocaleRules(), os::NamedLocaleRules(locale)) << locale;
  }
}

TEST(UserLocale, CategoriesMix) {
  const ScopedEnvironment environment({{"LANG", "en_US.UTF-8"}, {"LC_NUMERIC", "de_DE.UTF-8"}, {"LC_TIME", "sv_SE"}});
  const os::LocaleRules rules = os::UserLocaleRules();
  EXPECT_EQ(rules.name + rules.decimal + rules.currency + rules.shortDate, u"en-US,$yyyy-MM-dd");
}

}  // namespace
}  // namespace qzbase::tests
