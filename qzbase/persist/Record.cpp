#include "qzbase/persist/Record.h"

#include "qzbase/runtime/NumberText.h"

namespace qzbase {

// Foreign tags say anything: what is no version counts as none.
std::int32_t TagVersion(std::u16string_view pTag) {
  constexpr std::size_t kLongestVersion = 9;
  const std::size_t mark = pTag.find(u'#');
  if (mark == std::u16string_view::npos) return 0;
  return static_cast<std::int32_t>(runtime::LeadingNumber(pTag.substr(mark + 1, kLongestVersion)));
}

}  // namespace qzbase
