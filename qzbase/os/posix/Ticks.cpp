#include "qzbase/os/Ticks.h"

#include <chrono>
#include <ctime>
#include <thread>

namespace qzbase::os {

std::uint32_t TickMilliseconds() noexcept {
  timespec now{};
  clock_gettime(CLOCK_BOOTTIME, &now);
  const std::int64_t milliseconds = std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1000000;
  return static_cast<std::uint32_t>(milliseconds);
}

void SleepMilliseconds(std::uint32_t pMilliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(pMilliseconds));
}

}  // namespace qzbase::os
