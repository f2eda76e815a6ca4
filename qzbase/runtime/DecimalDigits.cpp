#include "qzbase/runtime/DecimalDigits.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace qzbase::runtime {
namespace {

using Scientific = std::array<char, 32>;  // "d.ddddddddddddddddE-eee" with room to spare

std::string_view Write(Scientific& pBuffer, double pValue) {
  const auto end =
      std::to_chars(pBuffer.data(), pBuffer.data() + pBuffer.size(), pValue, std::chars_format::scientific);
  return {pBuffer.data(), static_cast<std::size_t>(end.ptr - pBuffer.data())};
}

std::string_view Write(Scientific& pBuffer, double pValue, std::int32_t pDigits) {
  const auto end = std::to_chars(pBuffer.data(), pBuffer.data() + pBuffer.size(), pValue, std::chars_format::scientific,
                                 pDigits - 1);
  return {pBuffer.data(), static_cast<std::size_t>(end.ptr - pBuffer.data())};
}

// Digits of the mantissa in a scientific text: all but the point.
std::int32_t MantissaDigits(std::string_view pText) {
  const auto exponent = static_cast<std::int32_t>(pText.find('e'));
  return exponent > 1 ? exponent - 1 : exponent;
}

}  // namespace

DecimalDigits::DecimalDigits(double pValue, std::int32_t pMaxDigits)
    : negative_(std::signbit(pValue)), finite_(std::isfinite(pValue)) {
  if (!finite_ || pValue == 0) return;
  // The shortest text that reads back as the same number is the cheapest to make and, when it has no more digits than
  // asked for, also the nearest number of so many digits; but for subnormal numbers, which carry fewer digits than 15.
  // Only longer ones are rounded from the exact value.
  Scientific buffer;
  std::string_view text = Write(buffer, std::fabs(pValue));
  if (MantissaDigits(text) > pMaxDigits || !std::isnormal(pValue)) text = Write(buffer, std::fabs(pValue), pMaxDigits);

  const std::size_t exponentMark = text.find('e');
  digits_[0] = text[0];
  if (exponentMark > 1)
    std::copy(text.begin() + 2, text.begin() + static_cast<std::ptrdiff_t>(exponentMark), digits_.begin() + 1);
  count_ = MantissaDigits(text);
  std::string_view exponent = text.substr(exponentMark + 1);
  if (exponent.front() == '+') exponent.remove_prefix(1);
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), point_);
  ++point_;
  CutTrailingZeros();
}

void DecimalDigits::RoundHalfAway(std::int32_t pDecimals) noexcept {
  const std::int64_t kept = std::int64_t{point_} + pDecimals;
  if (kept >= count_) return;
  const bool up = kept >= 0 && digits_[static_cast<std::size_t>(kept)] >= '5';
  count_ = static_cast<std::int32_t>(std::max<std::int64_t>(kept, 0));
  if (!up) return CutTrailingZeros();
  while (count_ > 0 && digits_[static_cast<std::size_t>(count_ - 1)] == '9') --count_;
  if (count_ > 0) {
    ++digits_[static_cast<std::size_t>(count_ - 1)];
  } else {
    digits_[0] = '1';
    count_ = 1;
    ++point_;
  }
}

void DecimalDigits::CutTrailingZeros() noexcept {
  while (count_ > 0 && digits_[static_cast<std::size_t>(count_ - 1)] == '0') --count_;
  if (count_ == 0) point_ = 0;
}

}  // namespace qzbase::runtime
