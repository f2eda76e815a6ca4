#include "qzbase/os/posix/SortOrder.h"

#include <algorithm>

namespace qzbase::os {
namespace {

// 0: the character is not light; else its rank.
std::size_t LightRank(char16_t pUnit) noexcept {
  if (pUnit >= 0x80 && (pUnit < 0x2010 || pUnit > 0x2212)) return 0;
  if (pUnit < 0x80 && kAsciiOrder[pUnit].primary != 0) return 0;
  const std::size_t at = kLightOrder.find(pUnit);
  return at == std::u16string_view::npos ? 0 : at + 1;
}

// Combining marks and invisible formatting characters take no place of their own.
bool TakesPlace(char16_t pUnit) noexcept {
  if (pUnit < 0x300) return pUnit != 0 && pUnit != 0xAD;
  return !(pUnit < 0x370 || (pUnit >= 0x200C && pUnit <= 0x200F) || (pUnit >= 0x202A && pUnit <= 0x202E) ||
           (pUnit >= 0x2060 && pUnit <= 0x206F) || pUnit == 0xFEFF);
}

struct LightCharacter {
  std::size_t place = 0;
  std::size_t rank = 0;  // 0: there is none
};

class LightReader {
 public:
  explicit LightReader(std::u16string_view pText) noexcept : text_(pText) {}

  LightCharacter Next() noexcept {
    while (at_ < text_.size()) {
      const char16_t unit = text_[at_++];
      if (const std::size_t rank = LightRank(unit)) return {place_, rank};
      if (TakesPlace(unit)) ++place_;
    }
    return {};
  }

 private:
  std::u16string_view text_;
  std::size_t at_ = 0;
  std::size_t place_ = 0;
};

AsciiOrder NextWeight(std::u16string_view pText, std::size_t& pAt) noexcept {
  while (pAt < pText.size()) {
    const AsciiOrder order = kAsciiOrder[pText[pAt++]];
    if (order.primary != 0) return order;
  }
  return {};
}

}  // namespace

int CompareLight(std::u16string_view pLeft, std::u16string_view pRight) noexcept {
  LightReader left(pLeft);
  LightReader right(pRight);
  for (;;) {
    const LightCharacter l = left.Next();
    const LightCharacter r = right.Next();
    if (l.rank == 0 || r.rank == 0) return l.rank != 0 ? 1 : r.rank != 0 ? -1 : 0;
    if (l.place != r.place) return l.place < r.place ? 1 : -1;
    if (l.rank != r.rank) return l.rank < r.rank ? -1 : 1;
  }
}

int CompareAscii(std::u16string_view pLeft, std::u16string_view pRight, bool pIgnoreCase) noexcept {
  int byCase = 0;
  std::size_t leftAt = 0;
  std::size_t rightAt = 0;
  for (;;) {
    const AsciiOrder l = NextWeight(pLeft, leftAt);
    const AsciiOrder r = NextWeight(pRight, rightAt);
    if (l.primary != r.primary) return l.primary < r.primary ? -1 : 1;
    if (l.primary == 0) break;
    if (byCase == 0 && l.upper != r.upper) byCase = r.upper ? -1 : 1;
  }
  if (byCase != 0 && !pIgnoreCase) return byCase;
  return CompareLight(pLeft, pRight);
}

bool IsAscii(std::u16string_view pText) noexcept {
  unsigned bits = 0;
  for (const char16_t unit : pText) bits |= unit;
  return bits < 0x80;
}

}  // namespace qzbase::os
