#include <chrono>

#include <gtest/gtest.h>

#include "qzbase/os/Clock.h"

namespace qzbase::tests {

// The local year is the year of some moment within a day of now.
TEST(Clock, CurrentYear) {
  using namespace std::chrono;
  const auto yearAt = [](system_clock::time_point pTime) {
    return static_cast<int>(year_month_day(floor<days>(pTime)).year());
  };
  const auto now = system_clock::now();
  const std::int32_t year = os::CurrentYear();
  EXPECT_GE(year, yearAt(now - days(1)));
  EXPECT_LE(year, yearAt(now + days(1)));
}

}  // namespace qzbase::tests
