#include "qzbase/runtime/ShownNumber.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "qzbase/runtime/DecimalDigits.h"

namespace qzbase::runtime {
namespace {

double Shown(double pValue, std::int32_t pDigits) noexcept {
  if (!std::isfinite(pValue)) return pValue;
  std::array<char, 32> text{};
  char* const room = text.data();
  const char* end = std::to_chars(room, room + text.size(), pValue, std::chars_format::scientific, pDigits - 1).ptr;
  double shown = 0;
  std::from_chars(room, end, shown);
  return shown;
}

}  // namespace

double AsShown(double pValue) noexcept {
  return Shown(pValue, DecimalDigits::kTextDigits);
}

double AsShown(float pValue) noexcept {
  return Shown(pValue, DecimalDigits::kFloatDigits);
}

// Up to the limit every half has no more than 15 digits. So a number at or above a half is shown at or above it, and a
// number below it is shown there only if it is as near as rounding to 15 digits reaches.
bool RoundClearly(double pMagnitude, double& pWhole) noexcept {
  constexpr double kLimit = 1e13;
  constexpr double kReach = 6e-15;  // half a unit of the 15th digit is 5e-15 of the number at most
  if (!(pMagnitude < kLimit)) return false;
  const auto floor = static_cast<double>(static_cast<std::int64_t>(pMagnitude));
  const double missing = 0.5 - (pMagnitude - floor);
  const double middle = pMagnitude * kReach / 2;
  if (std::fabs(missing - middle) < middle) return false;  // more than 0, less than the reach
  pWhole = floor + static_cast<double>(missing <= 0);
  return true;
}

bool ShowSame(double pLeft, double pRight) noexcept {
  if (pLeft == pRight) return true;
  if (!std::isfinite(pLeft) || !std::isfinite(pRight)) return std::isnan(pLeft) && std::isnan(pRight);
  return DecimalDigits(pLeft) == DecimalDigits(pRight);
}

}  // namespace qzbase::runtime
