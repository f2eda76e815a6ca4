#include "qzbase/os/SystemVersion.h"

namespace qzbase::os {

std::optional<SystemVersion> CurrentSystem() {
  return SystemVersion{.platform = Platform::Linux};
}

}  // namespace qzbase::os
