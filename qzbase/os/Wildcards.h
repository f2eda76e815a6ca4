// Matching a text against the wildcards of a pattern, whatever the pattern's notation is.
#pragma once

#include <cstddef>
#include <string_view>

namespace qzbase::os {

// Whether the wildcards, in their order, take the whole text. One takes one character or, where it is a star, any run
// of them, an empty one included. Takes time in proportion to the text's length times the number of wildcards.
//
//   pIsStar(wildcard)           whether the wildcard is a star
//   pFits(wildcard, character)  whether it takes the character; not asked of stars
template <class Wildcards, class IsStar, class Fits>
bool FitsWildcards(std::u16string_view pText, const Wildcards& pWildcards, IsStar pIsStar, Fits pFits) {
  constexpr auto kNone = static_cast<std::size_t>(-1);
  std::size_t wildcard = 0;
  std::size_t star = kNone;  // the last one met, and where the text behind its run begins
  std::size_t behindRun = 0;
  for (std::size_t at = 0; at < pText.size();) {
    if (wildcard < pWildcards.size() && pIsStar(pWildcards[wildcard])) {
      star = wildcard++;
      behindRun = at;
    } else if (wildcard < pWildcards.size() && pFits(pWildcards[wildcard], pText[at])) {
      ++wildcard;
      ++at;
    } else if (star != kNone) {
      wildcard = star + 1;
      at = ++behindRun;
    } else {
      return false;
    }
  }
  while (wildcard < pWildcards.size() && pIsStar(pWildcards[wildcard])) ++wildcard;
  return wildcard == pWildcards.size();
}

}  // namespace qzbase::os
