#include "qzbase/os/Clock.h"

#include <windows.h>

namespace qzbase::os {

std::int32_t CurrentYear() {
  SYSTEMTIME local{};
  GetLocalTime(&local);
  return local.wYear;
}

}  // namespace qzbase::os
