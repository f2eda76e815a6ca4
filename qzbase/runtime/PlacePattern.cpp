#include "qzbase/runtime/PlacePattern.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "qzbase/runtime/ExactPowers.h"
#include "qzbase/runtime/ShownNumber.h"

namespace qzbase::runtime {
namespace {

constexpr double kExactWhole = 1e15;     // below it a double holds every digit of a number with decimals
constexpr std::int32_t kMaxPlaces = 16;  // on either side of the point

struct Places {
  std::int32_t integerDigits = 0;  // printed at least
  std::int32_t decimals = 0;       // printed at least
  std::int32_t maxDecimals = 0;
  bool point = false;
};

// False for what is no pattern of places.
bool ReadPlaces(std::u16string_view pPattern, Places& pPlaces) noexcept {
  std::int32_t integerPlaces = 0;
  for (const char16_t character : pPattern) {
    if (character == u'.') {
      if (pPlaces.point) return false;
      pPlaces.point = true;
    } else if (character != u'0' && character != u'#') {
      return false;
    } else if (pPlaces.point) {
      ++pPlaces.maxDecimals;
      if (character == u'0') pPlaces.decimals = pPlaces.maxDecimals;
    } else {
      ++integerPlaces;
      if (character == u'0' || pPlaces.integerDigits > 0) ++pPlaces.integerDigits;
    }
  }
  return integerPlaces + pPlaces.maxDecimals > 0;
}

bool HasRoom(const Places& pPlaces, const LocaleRules& pRules) noexcept {
  return pPlaces.maxDecimals <= kMaxPlaces && pPlaces.integerDigits <= kMaxPlaces &&
         pRules.decimal.size() <= static_cast<std::size_t>(kMaxPlaces);
}

// Writes a number from its last character to its first.
class BackwardWriter {
 public:
  void Add(char16_t pCharacter) noexcept { *--begin_ = pCharacter; }
  void Add(std::u16string_view pText) noexcept {
    if (pText.size() == 1) return Add(pText.front());
    begin_ = std::copy_backward(pText.begin(), pText.end(), begin_);
  }
  void AddDigit(std::uint64_t& pNumber) noexcept {
    Add(static_cast<char16_t>(u'0' + pNumber % 10));
    pNumber /= 10;
  }
  std::u16string_view Text() const noexcept { return {begin_, static_cast<std::size_t>(room_.end() - begin_)}; }

 private:
  std::array<char16_t, std::size_t{4} * kMaxPlaces> room_;
  char16_t* begin_ = room_.end();
};

// The places tell how many of the decimals may be cut off if they are zeros.
void Append(std::u16string& pText, double pWhole, const Places& pPlaces, bool pNegative, const LocaleRules& pRules) {
  auto number = static_cast<std::uint64_t>(pWhole);
  std::int32_t decimals = pPlaces.maxDecimals;
  for (; decimals > pPlaces.decimals && number % 10 == 0; --decimals) number /= 10;
  BackwardWriter writer;
  for (; decimals > 0; --decimals) writer.AddDigit(number);
  if (pPlaces.point) writer.Add(pRules.decimal);
  for (std::int32_t digits = 0; number > 0 || digits < pPlaces.integerDigits; ++digits) writer.AddDigit(number);
  if (pNegative) writer.Add(u'-');
  pText += writer.Text();
}

}  // namespace

bool AppendByPlaces(std::u16string& pText, double pValue, std::u16string_view pPattern, const LocaleRules& pRules) {
  Places places;
  if (!ReadPlaces(pPattern, places) || !HasRoom(places, pRules)) return false;
  double whole = 0;
  const double power = kExactPowers[static_cast<std::size_t>(places.maxDecimals)];
  if (!RoundClearly(std::fabs(pValue) * power, whole)) return false;
  Append(pText, whole, places, pValue < 0, pRules);
  return true;
}

bool AppendDecimal(std::u16string& pText, double pWhole, std::int32_t pDecimals, bool pNegative,
                   const LocaleRules& pRules) {
  if (pDecimals < -kMaxPlaces) return false;
  const std::int32_t zeros = std::max(-pDecimals, 0);
  const std::int32_t decimals = std::max(pDecimals, 0);
  const Places places = {1, decimals, decimals, decimals > 0};
  if (!HasRoom(places, pRules)) return false;
  const double whole = pWhole * kExactPowers[static_cast<std::size_t>(zeros)];
  if (whole < kExactWhole) Append(pText, whole, places, pNegative, pRules);
  return whole < kExactWhole;
}

}  // namespace qzbase::runtime
