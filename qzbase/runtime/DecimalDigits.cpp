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

// Whether the last digit is all that has to be cut and lies in the middle.
bool EndsHalfway(std::string_view pText, std::int32_t pMaxDigits) {
  return MantissaDigits(pText) == pMaxDigits + 1 && pText[pText.find('e') - 1] == '5';
}

}  // namespace

DecimalDigits::DecimalDigits(double pValue, std::int32_t pMaxDigits)
    : negative_(std::signbit(pValue)), finite_(std::isfinite(pValue)) {
  if (!finite_ || pValue == 0) return;
  // The shortest text that reads back as the same number is the cheapest to make. Cut to fewer digits it gives what the
  // exact value gives: a middle between two results on the way from one to the other would itself be a text as short
  // and nearer to the value. Only when the shortest text is such a middle the exact value has to decide; and subnormal
  // numbers may have fewer digits in it than are asked for.
  Scientific buffer;
  std::string_view text = Write(buffer, std::fabs(pValue));
  if (EndsHalfway(text, pMaxDigits) || !std::isnormal(pValue)) text = Write(buffer, std::fabs(pValue), pMaxDigits);
  Read(text);
  if (count_ > pMaxDigits) RoundHalfAway(pMaxDigits - point_);
  CutTrailingZeros();
}

void DecimalDigits::Read(std::string_view pText) noexcept {
  count_ = MantissaDigits(pText);
  digits_[0] = pText[0];
  for (std::size_t i = 1; i < static_cast<std::size_t>(count_); ++i) digits_[i] = pText[i + 1];  // behind the point
  const std::size_t exponent = pText.find('e') + 1;
  for (const char digit : pText.substr(exponent + 1)) point_ = point_ * 10 + (digit - '0');
  if (pText[exponent] == '-') point_ = -point_;
  ++point_;
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
