// Which operating system runs the program.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace qzbase::os {

// The families of systems. The numbers are known to hosts: do not change them.
enum class Platform : std::int32_t { Win32s = 0, Windows95 = 1, WindowsNt = 2, Linux = 4 };

struct SystemVersion {
  Platform platform{};
  std::int32_t major = 0;  // of Windows
  std::int32_t minor = 0;  // of Windows
  std::u16string servicePack{};
};

// Nothing where the system does not say.
std::optional<SystemVersion> CurrentSystem();

}  // namespace qzbase::os
