#include "qzbase/core/Arithmetic.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdlib>
#include <limits>

#include "qzbase/runtime/ExactPowers.h"

namespace qzbase {
namespace {

// Made by the compiler, which rounds every one to the nearest double.
constexpr auto kInverses = [] {
  auto inverses = runtime::kExactPowers;
  for (double& power : inverses) power = 1 / power;
  return inverses;
}();

}  // namespace
double PowerOfTen(std::int32_t pExponent) {
  const auto magnitude = static_cast<std::size_t>(std::abs(std::int64_t{pExponent}));
  if (magnitude < kInverses.size()) return pExponent < 0 ? kInverses[magnitude] : runtime::kExactPowers[magnitude];

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
