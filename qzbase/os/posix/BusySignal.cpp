#include "qzbase/os/BusySignal.h"

namespace qzbase::os {

void SignalBusy() noexcept {}

}  // namespace qzbase::os
