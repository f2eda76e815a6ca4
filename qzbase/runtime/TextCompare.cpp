#include "qzbase/runtime/TextCompare.h"

#include <algorithm>

#include "qzbase/os/Collation.h"

namespace qzbase::runtime {
namespace {

constexpr char16_t FoldAscii(char16_t pUnit) noexcept {
  return pUnit >= u'A' && pUnit <= u'Z' ? static_cast<char16_t>(pUnit - u'A' + u'a') : pUnit;
}

bool EqualFolded(std::u16string_view pLeft, std::u16string_view pRight) noexcept {
  return std::equal(pLeft.begin(), pLeft.end(), pRight.begin(), pRight.end(),
                    [](char16_t l, char16_t r) { return FoldAscii(l) == FoldAscii(r); });
}

bool IsAscii(std::u16string_view pText) noexcept {
  unsigned bits = 0;
  for (const char16_t unit : pText) bits |= unit;
  return bits < 0x80;
}

}  // namespace

int CompareText(std::u16string_view pLeft, std::u16string_view pRight, const LocaleRules& pRules) {
  return os::CompareText(pLeft, pRight, os::CaseRule::IgnoreCase, pRules.name);
}

std::size_t FindText(std::u16string_view pText, std::u16string_view pSought, std::size_t pStart,
                     const LocaleRules& pRules) {
  if (pStart > pText.size()) return std::u16string_view::npos;
  const bool soughtIsAscii = IsAscii(pSought);
  // ASCII stretches of the same length are equal when they differ in nothing but case, in every locale; only a stretch
  // that holds something else needs the locale's order. `asciiEnd` is the place of the next such character.
  std::size_t asciiEnd = pStart;
  for (std::size_t at = pStart; pSought.size() <= pText.size() - at; ++at) {
    const std::u16string_view stretch = pText.substr(at, pSought.size());
    const std::size_t end = at + pSought.size();
    if (asciiEnd < at) asciiEnd = at;
    while (asciiEnd < end && pText[asciiEnd] < 0x80) ++asciiEnd;
    const bool plain = soughtIsAscii && asciiEnd >= end;
    if (plain ? EqualFolded(stretch, pSought) : CompareText(stretch, pSought, pRules) == 0) return at;
  }
  return std::u16string_view::npos;
}

bool EqualName(std::u16string_view pLeft, std::u16string_view pRight) noexcept {
  return EqualFolded(pLeft, pRight);
}

}  // namespace qzbase::runtime
