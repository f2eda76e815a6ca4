#include "qzbase/persist/Record.h"

#include <algorithm>
#include <limits>

namespace qzbase {

// Foreign tags say anything: digits beyond the greatest version leave it at that.
std::int32_t TagVersion(std::u16string_view pTag) {
  constexpr std::int32_t kGreatest = std::numeric_limits<std::int32_t>::max();
  const std::size_t mark = pTag.find(u'#');
  if (mark == std::u16string_view::npos) return 0;
  std::int64_t version = 0;
  for (const char16_t digit : pTag.substr(mark + 1)) {
    if (digit < u'0' || digit > u'9') break;
    version = std::min<std::int64_t>(10 * version + (digit - u'0'), kGreatest);
  }
  return static_cast<std::int32_t>(version);
}

}  // namespace qzbase
