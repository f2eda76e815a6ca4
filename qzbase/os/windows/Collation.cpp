#include "qzbase/os/Collation.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>

#include <windows.h>

namespace qzbase::os {
namespace {

// A locale name with the terminating zero that the system wants; too long a name is none, hence the invariant order.
class LocaleName {
 public:
  explicit LocaleName(std::u16string_view pName) noexcept {
    if (pName.size() < name_.size())
      std::transform(pName.begin(), pName.end(), name_.begin(), [](char16_t c) { return static_cast<wchar_t>(c); });
  }
  const wchar_t* Get() const noexcept { return name_.data(); }

 private:
  std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> name_{};
};

const wchar_t* AsWide(std::u16string_view pText) noexcept {
  return reinterpret_cast<const wchar_t*>(pText.data());
}

// The system counts in `int`; what lies beyond two thousand million characters cannot be reached anyway.
int Length(std::u16string_view pText) noexcept {
  return static_cast<int>(std::min<std::size_t>(pText.size(), std::numeric_limits<int>::max()));
}

}  // namespace

int CompareText(std::u16string_view pLeft, std::u16string_view pRight, CaseRule pCase,
                std::u16string_view pLocaleName) {
  if (pLeft == pRight) return 0;
  // An empty text may have no address, which the system takes for an error.
  if (pLeft.empty()) pLeft = u"";
  if (pRight.empty()) pRight = u"";
  const DWORD flags = pCase == CaseRule::IgnoreCase ? NORM_IGNORECASE : 0;
  const LocaleName locale(pLocaleName);
  int result = CompareStringEx(locale.Get(), flags, AsWide(pLeft), Length(pLeft), AsWide(pRight), Length(pRight),
                               nullptr, nullptr, 0);
  if (result == 0)  // a locale that the system does not know
    result = CompareStringEx(LOCALE_NAME_INVARIANT, flags, AsWide(pLeft), Length(pLeft), AsWide(pRight), Length(pRight),
                             nullptr, nullptr, 0);
  return result - CSTR_EQUAL;
}

}  // namespace qzbase::os
