#include "qzbase/os/Guid.h"

#include <algorithm>

#include <objbase.h>
#include <windows.h>

namespace qzbase::os {

std::optional<Guid> NewGuid() noexcept {
  GUID made;
  if (FAILED(CoCreateGuid(&made))) return std::nullopt;
  Guid guid{static_cast<std::uint32_t>(made.Data1), made.Data2, made.Data3, {}};
  std::copy(std::begin(made.Data4), std::end(made.Data4), guid.data4.begin());
  return guid;
}

}  // namespace qzbase::os
