#include "qzbase/core/Arithmetic.h"

#include <array>
#include <charconv>
#include <limits>

namespace qzbase {

double PowerOfTen(std::int32_t pExponent) {
  using Limits = std::numeric_limits<double>;
  if (pExponent > Limits::max_exponent10) runtime::Raise(runtime::RuntimeError::Overflow);
  if (pExponent < Limits::min_exponent10 - Limits::digits10 - 1) return 0;

  // The decimal reader is exact to the last bit, which `pow` need not be.
  std::array<char, 8> text = {'1', 'e'};
  const auto end = std::to_chars(text.data() + 2, text.data() + text.size(), pExponent).ptr;
  double power = 0;
  std::from_chars(text.data(), end, power);
  return power;
}

}  // namespace qzbase
