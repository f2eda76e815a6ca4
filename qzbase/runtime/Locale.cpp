#include "qzbase/runtime/Locale.h"

#include <utility>

#include "qzbase/os/ThreadSlot.h"

namespace qzbase::runtime {
namespace {

struct LocaleState {
  LocaleRules rules = os::UserLocaleRules();
};

LocaleRules& Rules() {
  static os::PerThread<LocaleState> state;
  return state->rules;
}

}  // namespace

const LocaleRules& ThreadLocale() {
  return Rules();
}

void SetThreadLocale(LocaleRules pRules) {
  Rules() = std::move(pRules);
}

ScopedLocale::ScopedLocale(LocaleRules pRules) : saved_(std::exchange(Rules(), std::move(pRules))) {}

ScopedLocale::~ScopedLocale() {
  Rules() = std::move(saved_);
}

}  // namespace qzbase::runtime
