// One instant, in universal and in local time.
#pragma once

#include "qzbase/runtime/Date.h"

namespace qzbase {

struct TTimeStamp {
  runtime::Date UniversalTime;
  runtime::Date LocalTime;
  bool operator==(const TTimeStamp&) const = default;
};

}  // namespace qzbase
