#include "qzbase/runtime/WildcardPattern.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "qzbase/os/Wildcards.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::runtime {
namespace {

enum class PieceKind : std::uint8_t { Run, Any, Digit, List, OtherThanList };

// One character is a list of one.
struct WildcardPiece {
  PieceKind kind;
  std::u16string_view list;  // without brackets and "!"
};

WildcardPiece ListPiece(std::u16string_view pList) noexcept {
  const bool isNegative = pList.size() > 1 && pList.front() == u'!';
  return isNegative ? WildcardPiece{PieceKind::OtherThanList, pList.substr(1)} : WildcardPiece{PieceKind::List, pList};
}

WildcardPiece CharacterPiece(std::u16string_view pCharacter) noexcept {
  switch (pCharacter.front()) {
    case u'*':
      return {PieceKind::Run, {}};
    case u'?':
      return {PieceKind::Any, {}};
    case u'#':
      return {PieceKind::Digit, {}};
    default:
      return {PieceKind::List, pCharacter};
  }
}

std::vector<WildcardPiece> PiecesOf(std::u16string_view pPattern) {
  std::vector<WildcardPiece> pieces;
  pieces.reserve(pPattern.size());
  for (std::size_t at = 0; at < pPattern.size(); ++at) {
    if (pPattern[at] != u'[') {
      pieces.push_back(CharacterPiece(pPattern.substr(at, 1)));
      continue;
    }
    const std::size_t end = pPattern.find(u']', at);
    if (end == std::u16string_view::npos) Raise(RuntimeError::InvalidPattern);
    if (end > at + 1) pieces.push_back(ListPiece(pPattern.substr(at + 1, end - at - 1)));
    at = end;
  }
  return pieces;
}

class PieceMatch {
 public:
  explicit PieceMatch(const LocaleRules& pRules) noexcept : rules_(pRules) {}

  bool operator()(const WildcardPiece& pPiece, char16_t pCharacter) const {
    switch (pPiece.kind) {
      case PieceKind::Digit:
        return pCharacter >= u'0' && pCharacter <= u'9';
      case PieceKind::List:
        return IsInList({&pCharacter, 1}, pPiece.list);
      case PieceKind::OtherThanList:
        return !IsInList({&pCharacter, 1}, pPiece.list);
      default:
        return true;
    }
  }

 private:
  bool IsInList(std::u16string_view pCharacter, std::u16string_view pList) const {
    bool isIn = false;
    for (std::size_t at = 0; at < pList.size(); ++at) {
      const std::u16string_view first = pList.substr(at, 1);
      const bool isRange = at + 2 < pList.size() && pList[at + 1] == u'-';
      if (isRange) at += 2;
      const std::u16string_view last = pList.substr(at, 1);
      if (isRange && CompareText(first, last, rules_) > 0) Raise(RuntimeError::InvalidPattern);
      isIn = isIn || (CompareText(first, pCharacter, rules_) <= 0 && CompareText(pCharacter, last, rules_) <= 0);
    }
    return isIn;
  }

  const LocaleRules& rules_;
};

}  // namespace

bool FitsWildcards(std::u16string_view pText, std::u16string_view pPattern, const LocaleRules& pRules) {
  const auto isRun = [](const WildcardPiece& pPiece) { return pPiece.kind == PieceKind::Run; };
  return os::FitsPieces(pText, PiecesOf(pPattern), isRun, PieceMatch(pRules));
}

}  // namespace qzbase::runtime
