// The texts of ModFileUtil.h.
#include <algorithm>

#include "qzbase/platform/ModFileUtil.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::ModFileUtil {
namespace {

constexpr std::size_t kNotFound = std::u16string_view::npos;

// The digits without zeros in front; empty for 0. Characters that only sort among the digits end them.
std::u16string_view SignificantDigits(std::u16string_view pIndex) {
  pIndex = pIndex.substr(0, pIndex.find_first_not_of(u"0123456789"));
  return pIndex.substr(std::min(pIndex.find_first_not_of(u'0'), pIndex.size()));
}

}  // namespace

std::u16string_view GetExtn(std::u16string_view pName) {
  const std::size_t stop = pName.find_last_of(u"\\.");
  return stop != kNotFound && pName[stop] == u'.' ? pName.substr(stop) : std::u16string_view();
}

std::u16string_view GetPath(std::u16string_view pName) {
  return pName.substr(0, pName.rfind(u'\\') + 1);
}

std::u16string_view StripExtn(std::u16string_view pName) {
  return pName.substr(0, pName.size() - GetExtn(pName).size());
}

std::u16string_view StripPath(std::u16string_view pName) {
  return pName.substr(GetPath(pName).size());
}

std::u16string_view GetFileNameIndex(std::u16string_view pName) {
  const std::u16string_view name = StripExtn(StripPath(pName));
  std::size_t digits = name.size();
  while (digits > 0 && runtime::IsDigitText(name.substr(digits - 1, 1))) --digits;
  const bool isIndex = digits > 0 && runtime::EqualText(name.substr(digits - 1, 1), u"#");
  return isIndex ? name.substr(digits) : std::u16string_view();
}

std::u16string_view StripFileNameIndex(std::u16string_view pName) {
  const std::size_t digits = GetFileNameIndex(pName).size();
  return digits == 0 ? pName : pName.substr(0, pName.size() - digits - 1);
}

std::u16string_view GetFileNameRoot(std::u16string_view pName) {
  return StripFileNameIndex(StripExtn(StripPath(pName)));
}

std::u16string IndexedFileName(std::u16string_view pName, std::int32_t pIndex) {
  std::u16string index = runtime::NumberText(pIndex);
  if (pIndex < 1) index = SignificantDigits(GetFileNameIndex(pName));
  if (index.empty()) index = u"1";
  if (index.size() < 2) index.insert(0, 1, u'0');
  std::u16string name(GetPath(pName));
  return name.append(GetFileNameRoot(pName)).append(u"#").append(index).append(GetExtn(pName));
}

std::u16string PathToDir(std::u16string_view pPath) {
  std::u16string folder(pPath);
  if (folder.ends_with(u'\\')) folder.pop_back();
  if (folder.ends_with(u':')) folder += u'\\';
  return folder;
}

}  // namespace qzbase::ModFileUtil
