#include "qzbase/os/Clock.h"

#include <ctime>

namespace qzbase::os {
namespace {

std::optional<std::tm> LocalNow() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  if (localtime_r(&now, &local) == nullptr) return std::nullopt;
  return local;
}

}  // namespace

ClockTime LocalTime() {
  const std::tm local = LocalNow().value_or(std::tm{});
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

std::int32_t CurrentYear() {
  return LocalTime().year;
}

std::optional<ZoneBias> CurrentZoneBias() {
  const std::optional<std::tm> local = LocalNow();
  if (!local) return std::nullopt;
  return ZoneBias{.bias = static_cast<std::int32_t>(-local->tm_gmtoff / 60)};
}

}  // namespace qzbase::os
