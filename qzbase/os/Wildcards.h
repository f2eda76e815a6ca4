// Matching a text against pieces of a pattern, whatever the pattern's notation is.
#pragma once

#include <cstddef>
#include <string_view>

namespace qzbase::os {

// Whether the pieces, in their order, take the whole text. A piece takes one character or, where it is a star, any run
// of them, an empty one included. Takes time in proportion to the text's length times the number of pieces.
//
//   pIsStar(piece)           whether the piece is a star
//   pFits(piece, character)  whether it takes the character; not asked of stars
template <class Pieces, class IsStar, class Fits>
bool FitsPieces(std::u16string_view pText, const Pieces& pPieces, IsStar pIsStar, Fits pFits) {
  constexpr auto kNone = static_cast<std::size_t>(-1);
  std::size_t piece = 0;
  std::size_t star = kNone;  // the last one met, and where the text behind its run begins
  std::size_t behindRun = 0;
  for (std::size_t at = 0; at < pText.size();) {
    if (piece < pPieces.size() && pIsStar(pPieces[piece])) {
      star = piece++;
      behindRun = at;
    } else if (piece < pPieces.size() && pFits(pPieces[piece], pText[at])) {
      ++piece;
      ++at;
    } else if (star != kNone) {
      piece = star + 1;
      at = ++behindRun;
    } else {
      return false;
    }
  }
  while (piece < pPieces.size() && pIsStar(pPieces[piece])) ++piece;
  return piece == pPieces.size();
}

}  // namespace qzbase::os
