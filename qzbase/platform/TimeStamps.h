// This moment, in local and in universal time.
#pragma once

#include <optional>

#include "qzbase/os/Clock.h"
#include "qzbase/platform/TTimeStamp.h"

namespace qzbase::ModBase {

// To the second. The universal time is day 0 where the system does not know its time zone. The second form is the stamp
// of a given moment.
TTimeStamp NewTimeStamp();
TTimeStamp TimeStampOf(const os::ClockTime& pLocal, const std::optional<os::ZoneBias>& pZone);

}  // namespace qzbase::ModBase
