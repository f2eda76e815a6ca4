#include "qzbase/os/Clock.h"

#include <ctime>

namespace qzbase::os {

std::int32_t CurrentYear() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return local.tm_year + 1900;
}

}  // namespace qzbase::os
