#include "qzbase/os/SystemVersion.h"

#include <string_view>

#include <windows.h>

namespace qzbase::os {

std::optional<SystemVersion> CurrentSystem() {
  OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof version;
  if (!GetVersionExW(&version)) return std::nullopt;
  const std::wstring_view servicePack = version.szCSDVersion;
  return SystemVersion{static_cast<Platform>(version.dwPlatformId),
                       static_cast<std::int32_t>(version.dwMajorVersion),
                       static_cast<std::int32_t>(version.dwMinorVersion),
                       {servicePack.begin(), servicePack.end()}};
}

}  // namespace qzbase::os
