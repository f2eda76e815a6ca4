#include "qzbase/os/Clock.h"

#include <windows.h>

namespace qzbase::os {

ClockTime LocalTime() {
  SYSTEMTIME local{};
  GetLocalTime(&local);
  return {local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
}

std::int32_t CurrentYear() {
  return LocalTime().year;
}

std::optional<ZoneBias> CurrentZoneBias() {
  using Season = ZoneBias::Season;
  TIME_ZONE_INFORMATION zone{};
  const DWORD season = GetTimeZoneInformation(&zone);
  if (season == TIME_ZONE_ID_INVALID) return std::nullopt;
  return ZoneBias{season == TIME_ZONE_ID_STANDARD   ? Season::Standard
                  : season == TIME_ZONE_ID_DAYLIGHT ? Season::Daylight
                                                    : Season::Unknown,
                  static_cast<std::int32_t>(zone.Bias), static_cast<std::int32_t>(zone.StandardBias),
                  static_cast<std::int32_t>(zone.DaylightBias)};
}

}  // namespace qzbase::os
