// The date of today, for texts that leave something out ("28 Nov").
#pragma once

#include <cstdint>

namespace qzbase::os {

// The current year of the user's calendar (proleptic Gregorian), in local time.
std::int32_t CurrentYear();

}  // namespace qzbase::os
