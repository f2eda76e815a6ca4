#include "qzbase/text/ModString.h"

#include <utility>
#include <vector>

namespace qzbase::ModString {

namespace {

// The platform's search: nothing is found from the end of the text on, not even an empty text.
std::size_t Find(std::u16string_view pText, std::u16string_view pSought, std::size_t pStart) {
  return pStart < pText.size() ? pText.find(pSought, pStart) : std::u16string_view::npos;
}

}  // namespace

std::int32_t SplitList(std::u16string_view pSource, std::u16string_view pDelim,
                       runtime::Array<std::u16string>& pItems) {
  if (pSource.empty()) return 0;

  // Collected aside: the source may be one of the items that are to be replaced.
  std::vector<std::u16string> items;
  std::size_t start = 0;
  for (std::size_t at = Find(pSource, pDelim, 0); at != std::u16string_view::npos; at = Find(pSource, pDelim, start)) {
    items.emplace_back(pSource.substr(start, at - start));
    start = at + 1;
  }
  items.emplace_back(pSource.substr(start));
  pItems = runtime::Array<std::u16string>(1, std::move(items));
  return pItems.Size();
}

std::u16string TakeToken(std::u16string& pSource, std::u16string_view pDelim) {
  std::u16string_view rest = pSource;
  std::u16string token(TakeToken(rest, pDelim));
  pSource.erase(0, pSource.size() - rest.size());
  return token;
}

std::u16string_view TakeToken(std::u16string_view& pSource, std::u16string_view pDelim) {
  const std::size_t at = pDelim.empty() ? std::u16string_view::npos : pSource.find(pDelim);
  if (at == std::u16string_view::npos) return std::exchange(pSource, {});
  const std::u16string_view token = pSource.substr(0, at);
  pSource.remove_prefix(at + pDelim.size());
  return token;
}

std::u16string_view TrimBlanks(std::u16string_view pText) {
  const std::size_t first = pText.find_first_not_of(u' ');
  return first == std::u16string_view::npos ? std::u16string_view()
                                            : pText.substr(first, pText.find_last_not_of(u' ') - first + 1);
}

std::u16string ReplaceAll(std::u16string_view pSource, std::u16string_view pOld, std::u16string_view pNew) {
  if (pOld.empty() || pNew == pOld) return std::u16string(pSource);

  std::u16string result;
  std::size_t start = 0;
  for (std::size_t at = pSource.find(pOld); at != std::u16string_view::npos; at = pSource.find(pOld, start)) {
    result.append(pSource, start, at - start).append(pNew);
    start = at + pOld.size();
  }
  return result.append(pSource, start);
}

}  // namespace qzbase::ModString
