#include "qzbase/platform/TimeStamps.h"

#include <cstdint>

namespace qzbase::ModBase {
namespace {

constexpr double kMinutesADay = 1440;

std::int32_t TotalBias(const os::ZoneBias& pZone) {
  using Season = os::ZoneBias::Season;
  switch (pZone.season) {
    case Season::Standard:
      return pZone.bias + pZone.standard;
    case Season::Daylight:
      return pZone.bias + pZone.daylight;
    case Season::Unknown:
      break;
  }
  return pZone.bias;
}

// Brought back to whole seconds, so that it equals the same moment made of its parts.
runtime::Date WholeSeconds(runtime::Date pDate) {
  return runtime::MakeDate(runtime::SplitDate(pDate));
}

}  // namespace

runtime::Date DateOf(const os::ClockTime& pTime) {
  if (!runtime::IsValidDay(pTime.year, pTime.month, pTime.day)) return {};
  return runtime::MakeDate({pTime.year, pTime.month, pTime.day, pTime.hour, pTime.minute, pTime.second});
}

TTimeStamp NewTimeStamp() {
  return TimeStampOf(os::LocalTime(), os::CurrentZoneBias());
}

TTimeStamp TimeStampOf(const os::ClockTime& pLocal, const std::optional<os::ZoneBias>& pZone) {
  TTimeStamp stamp;
  stamp.LocalTime = DateOf(pLocal);
  if (pZone) stamp.UniversalTime = WholeSeconds({stamp.LocalTime.days + TotalBias(*pZone) / kMinutesADay});
  return stamp;
}

}  // namespace qzbase::ModBase
