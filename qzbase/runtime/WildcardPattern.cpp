#include "qzbase/runtime/WildcardPattern.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "qzbase/os/Wildcards.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Characters.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::runtime {
namespace {

enum class Sought : std::uint8_t { Run, Any, Digit, List, OtherThanList };

// One character is a list of one.
struct Wildcard {
  Sought kind;
  std::u16string_view list;  // without brackets and "!"
};

Wildcard ListWildcard(std::u16string_view pList) noexcept {
  const bool isNegative = pList.size() > 1 && pList.front() == u'!';
  return isNegative ? Wildcard{Sought::OtherThanList, pList.substr(1)} : Wildcard{Sought::List, pList};
}

Wildcard CharacterWildcard(std::u16string_view pCharacter) noexcept {
  switch (pCharacter.front()) {
    case u'*':
      return {Sought::Run, {}};
    case u'?':
      return {Sought::Any, {}};
    case u'#':
      return {Sought::Digit, {}};
    default:
      return {Sought::List, pCharacter};
  }
}

std::vector<Wildcard> WildcardsOf(std::u16string_view pPattern) {
  std::vector<Wildcard> wildcards;
  wildcards.reserve(pPattern.size());
  for (std::size_t at = 0; at < pPattern.size(); ++at) {
    if (pPattern[at] != u'[') {
      wildcards.push_back(CharacterWildcard(pPattern.substr(at, 1)));
      continue;
    }
    const std::size_t end = pPattern.find(u']', at);
    if (end == std::u16string_view::npos) Raise(RuntimeError::InvalidPattern);
    if (end > at + 1) wildcards.push_back(ListWildcard(pPattern.substr(at + 1, end - at - 1)));
    at = end;
  }
  return wildcards;
}

class WildcardMatch {
 public:
  explicit WildcardMatch(const LocaleRules& pRules) noexcept : rules_(pRules) {}

  bool operator()(const Wildcard& pWildcard, char16_t pCharacter) const {
    switch (pWildcard.kind) {
      case Sought::Digit:
        return IsDecimalDigit(pCharacter);
      case Sought::List:
        return IsInList({&pCharacter, 1}, pWildcard.list);
      case Sought::OtherThanList:
        return !IsInList({&pCharacter, 1}, pWildcard.list);
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
  const auto isRun = [](const Wildcard& pWildcard) { return pWildcard.kind == Sought::Run; };
  return os::FitsWildcards(pText, WildcardsOf(pPattern), isRun, WildcardMatch(pRules));
}

}  // namespace qzbase::runtime
