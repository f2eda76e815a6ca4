#include "qzbase/os/Ticks.h"

#include <windows.h>

namespace qzbase::os {

std::uint32_t TickMilliseconds() noexcept {
  return GetTickCount();
}

void SleepMilliseconds(std::uint32_t pMilliseconds) {
  Sleep(pMilliseconds);
}

}  // namespace qzbase::os
