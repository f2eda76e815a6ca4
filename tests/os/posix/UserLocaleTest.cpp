// The user's locale as the environment names it.
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/os/LocaleRules.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

// Sets the variables of the locale for the length of a scope, all others of them away.
class ScopedEnvironment {
 public:
  explicit ScopedEnvironment(const std::map<std::string, std::string>& pValues) {
    for (const char* name : {"LC_ALL", "LC_COLLATE", "LC_NUMERIC", "LC_MONETARY", "LC_TIME", "LANG"}) {
      if (const char* value = std::getenv(name)) saved_[name] = value;
      names_.push_back(name);
      unsetenv(name);
    }
    for (const auto& [name, value] : pValues) setenv(name.c_str(), value.c_str(), 1);
  }
  ~ScopedEnvironment() {
    for (const std::string& name : names_) unsetenv(name.c_str());
    for (const auto& [name, value] : saved_) setenv(name.c_str(), value.c_str(), 1);
  }
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

 private:
  std::vector<std::string> names_;
  std::map<std::string, std::string> saved_;
};

struct EnvironmentRow {
  std::map<std::string, std::string> values;
  const char* locale;  // "": the invariant rules
};

TEST(UserLocale, IsTheOneThatTheEnvironmentNames) {
  const EnvironmentRow rows[] = {
      {{}, ""},
      {{{"LANG", "C.UTF-8"}}, ""},
      {{{"LANG", "POSIX"}}, ""},
      {{{"LANG", "xx_XX.UTF-8"}}, ""},
      {{{"LANG", "de_CH.UTF-8"}}, "de-CH"},
      {{{"LANG", "de_DE@euro"}}, "de-DE"},
      {{{"LANG", "sv_SE"}, {"LC_ALL", "fr_FR.UTF-8"}, {"LC_TIME", "C"}}, "fr-FR"},
      {{{"LANG", "sv_SE"}, {"LC_ALL", ""}}, "sv-SE"},
      {{{"LANG", "sv_SE"}, {"LC_ALL", "C"}}, ""},
  };
  for (const EnvironmentRow& row : rows) {
    const ScopedEnvironment environment(row.values);
    SCOPED_TRACE(row.locale);
    EXPECT_EQ(os::UserLocaleRules(), os::NamedLocaleRules(row.locale));
  }
}

TEST(UserLocale, CategoriesMix) {
  const ScopedEnvironment environment({{"LANG", "en_US.UTF-8"}, {"LC_NUMERIC", "de_DE.UTF-8"}, {"LC_TIME", "sv_SE"}});
  const os::LocaleRules rules = os::UserLocaleRules();
  EXPECT_EQ(rules.name, u"en-US");
  EXPECT_EQ(rules.decimal, u",");
  EXPECT_EQ(rules.currency, u"$");
  EXPECT_EQ(rules.shortDate, u"yyyy-MM-dd");
}

}  // namespace
}  // namespace qzbase::tests
