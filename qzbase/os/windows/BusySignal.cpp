#include "qzbase/os/BusySignal.h"

#include <windows.h>

namespace qzbase::os {

void SignalBusy() noexcept {
  SetThreadExecutionState(ES_SYSTEM_REQUIRED);
}

}  // namespace qzbase::os
