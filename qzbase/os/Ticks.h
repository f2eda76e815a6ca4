// Time that only passes: for measuring how long something takes, and for waiting.
#pragma once

#include <cstdint>

namespace qzbase::os {

// Milliseconds since the system started; begins again at 0 after 49.7 days.
std::uint32_t TickMilliseconds() noexcept;

// Blocks the calling thread, signals or not.
void SleepMilliseconds(std::uint32_t pMilliseconds);

}  // namespace qzbase::os
