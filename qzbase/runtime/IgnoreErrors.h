// Calls whose failures concern nobody, such as those into the controls that show errors.
#pragma once

#include <exception>
#include <utility>

#include "qzbase/runtime/AutomationError.h"

namespace qzbase::runtime {

// What the call raises ends here. The thread's last error stays the one that it was, whatever the call does: it may be
// the very one that is being shown.
template <class Call>
void IgnoreErrors(Call&& pCall) {
  ErrorRecord last = LastError();
  try {
    std::forward<Call>(pCall)();
  } catch (const std::exception&) {
    // Nobody's concern.
  }
  SetLastError(std::move(last));
}

}  // namespace qzbase::runtime
