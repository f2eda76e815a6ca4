#include "qzbase/os/Guid.h"

#include <sys/random.h>

namespace qzbase::os {

std::optional<Guid> NewGuid() noexcept {
  static_assert(sizeof(Guid) == 16, "random bytes fill it without a gap");
  Guid guid;
  if (getrandom(&guid, sizeof guid, 0) != sizeof guid) return std::nullopt;
  guid.data3 = static_cast<std::uint16_t>((guid.data3 & 0x0FFFU) | 0x4000U);   // the version
  guid.data4[0] = static_cast<std::uint8_t>((guid.data4[0] & 0x3FU) | 0x80U);  // the variant
  return guid;
}

}  // namespace qzbase::os
