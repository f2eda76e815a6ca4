// The locale rules of the calling thread.
//
// Every text function takes rules as its last argument and, when nothing is said, uses the thread's. They are read from
// the user's settings at the thread's first use; tests and hosts may set others.
#pragma once

#include "qzbase/os/LocaleRules.h"

namespace qzbase::runtime {

using os::LocaleRules;

const LocaleRules& ThreadLocale();
void SetThreadLocale(LocaleRules pRules);

// Other rules for the length of a scope.
class ScopedLocale {
 public:
  explicit ScopedLocale(LocaleRules pRules);
  ~ScopedLocale();
  ScopedLocale(const ScopedLocale&) = delete;
  ScopedLocale& operator=(const ScopedLocale&) = delete;

 private:
  LocaleRules saved_;
};

}  // namespace qzbase::runtime
