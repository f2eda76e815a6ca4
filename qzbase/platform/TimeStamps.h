// This moment, in local and in universal time.
#pragma once

#include <optional>

#include "qzbase/os/Clock.h"
#include "qzbase/platform/TTimeStamp.h"
#include "qzbase/runtime/Date.h"

namespace qzbase::ModBase {

// The date of a time of the clock; day 0 outside the calendar's years.
runtime::Date DateOf(const os::ClockTime& pTime);

// To the second. The universal time is day 0 where the system does not know its time zone. The second form is the stamp
// of a given moment.
TTimeStamp NewTimeStamp();
TTimeStamp TimeStampOf(const os::ClockTime& pLocal, const std::optional<os::ZoneBias>& pZone);

}  // namespace qzbase::ModBase
