// What a fuzz target holds the library to. A promise that is broken ends the program, which the fuzzer reports as a
// crash.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>

#include "qzbase/runtime/AutomationError.h"

namespace qzbase::fuzz {

inline void Require(bool pHolds) {
  if (!pHolds) std::abort();
}

// False where the call raised an error, which must be one of those that its documentation names.
template <class Call>
bool Succeeds(std::initializer_list<std::int32_t> pErrors, Call pCall) {
  try {
    pCall();
    return true;
  } catch (const runtime::AutomationError& error) {
    Require(std::find(pErrors.begin(), pErrors.end(), error.Number()) != pErrors.end());
    return false;
  }
}

}  // namespace qzbase::fuzz
