// What single characters are to readers of numbers and dates.
#pragma once

#include <string_view>

namespace qzbase::runtime {

// 0 to 9, no other script's.
constexpr bool IsDecimalDigit(char16_t pCharacter) noexcept {
  return pCharacter >= u'0' && pCharacter <= u'9';
}

// The blanks and line ends of all scripts.
constexpr bool IsBlank(char16_t pCharacter) noexcept {
  if (pCharacter <= u' ') return pCharacter == u' ' || (pCharacter >= u'\t' && pCharacter <= u'\r');
  if (pCharacter < u'\u0085') return false;
  if (pCharacter >= u'\u2000' && pCharacter <= u'\u200A') return true;
  return std::u16string_view(u"\u0085\u00A0\u1680\u2028\u2029\u202F\u205F\u3000").find(pCharacter) !=
         std::u16string_view::npos;
}

constexpr std::u16string_view WithoutBlanks(std::u16string_view pText) noexcept {
  while (!pText.empty() && IsBlank(pText.front())) pText.remove_prefix(1);
  while (!pText.empty() && IsBlank(pText.back())) pText.remove_suffix(1);
  return pText;
}

}  // namespace qzbase::runtime
