// Date and time as the user's clock shows them, and how far that is from universal time.
#pragma once

#include <cstdint>
#include <optional>

namespace qzbase::os {

// In the user's calendar (proleptic Gregorian) and time zone; months and days from 1.
struct ClockTime {
  std::int32_t year = 0;
  std::int32_t month = 0;
  std::int32_t day = 0;
  std::int32_t hour = 0;
  std::int32_t minute = 0;
  std::int32_t second = 0;
};

ClockTime LocalTime();

// For texts that leave something out ("28 Nov").
std::int32_t CurrentYear();

// The minutes that lead from local time to universal time: `bias`, and for the season that it is now the bias of that
// season as well. A zone of which only the whole is known has an unknown season.
struct ZoneBias {
  enum class Season : std::uint8_t { Unknown, Standard, Daylight };
  Season season = Season::Unknown;
  std::int32_t bias = 0;
  std::int32_t standard = 0;
  std::int32_t daylight = 0;
};

// Nothing where the system does not know its time zone.
std::optional<ZoneBias> CurrentZoneBias();

}  // namespace qzbase::os
