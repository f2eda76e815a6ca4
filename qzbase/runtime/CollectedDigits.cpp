#include "qzbase/runtime/CollectedDigits.h"

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cstdlib>
#include <limits>
#include <system_error>

#include "qzbase/runtime/ExactPowers.h"

namespace qzbase::runtime {

// Works on copies of the counts: the compiler has to take the digits that are stored for changes of any member.
void CollectedDigits::TakeDigits(std::u16string_view& pRest) noexcept {
  const auto isZero = [](char16_t pCharacter) { return pCharacter == u'0'; };
  const auto begin = pRest.begin();
  const auto first = count_ == 0 ? std::find_if_not(begin, pRest.end(), isZero) : begin;
  auto end = first;
  std::size_t count = count_;
  std::uint64_t whole = whole_;
  for (; end != pRest.end() && IsDecimalDigit(*end); ++end) {
    const auto digit = static_cast<char>(*end);
    whole = whole * 10 + static_cast<std::uint64_t>(digit - '0');
    if (count < kKept)
      digits_[count++] = digit;
    else
      leftOut_ = leftOut_ || digit != '0';
  }
  count_ = count;
  whole_ = whole;
  point_ += inDecimals_ ? begin - first : end - first;
  any_ = any_ || end != begin;
  pRest.remove_prefix(static_cast<std::size_t>(end - begin));
}

// Of few digits and a small power of ten both are exact, so that one operation gives the nearest number; unless the
// processor computes with more bits than a double has.
bool CollectedDigits::ToExact(double& pValue) const noexcept {
  constexpr std::size_t kMaxDigits = std::numeric_limits<double>::digits10;
  const std::int64_t power = Point() - static_cast<std::int64_t>(count_);
  const auto magnitude = static_cast<std::uint64_t>(std::abs(power));
  if (FLT_EVAL_METHOD != 0 || count_ > kMaxDigits || magnitude >= kExactPowers.size()) return false;
  const auto number = static_cast<double>(whole_);
  const double powerOfTen = kExactPowers[static_cast<std::size_t>(magnitude)];
  pValue = power < 0 ? number / powerOfTen : number * powerOfTen;
  return true;
}

// The number as std::from_chars reads it: whole digits and an exponent.
std::size_t CollectedDigits::Write(Scientific& pText) const noexcept {
  char* end = std::copy_n(digits_.data(), count_, pText.data());
  std::int64_t power = Point() - static_cast<std::int64_t>(count_);
  if (leftOut_) {
    *end++ = '1';
    --power;
  }
  if (power != 0) {
    *end++ = 'e';
    end = std::to_chars(end, pText.data() + pText.size(), power).ptr;
  }
  return static_cast<std::size_t>(end - pText.data());
}

bool CollectedDigits::ToNumber(bool pNegative, double& pValue) const noexcept {
  double value = 0;
  if (count_ > 0 && !ToExact(value)) {
    Scientific text;
    const std::size_t size = Write(text);
    const bool outOfRange = std::from_chars(text.data(), text.data() + size, value).ec != std::errc();
    if (outOfRange && Point() > 0) return false;
    if (outOfRange) value = 0;
    if (value == std::numeric_limits<double>::max() && ExceedsLargest()) return false;
  }
  pValue = pNegative ? -value : value;
  return true;
}

// Of texts that round to the largest double, those above it are too large; the others are the number itself.
bool CollectedDigits::ExceedsLargest() const noexcept {
  constexpr double kLargest = std::numeric_limits<double>::max();
  std::array<char, std::numeric_limits<double>::max_exponent10 + 2> largest;
  const auto end =
      std::to_chars(largest.data(), largest.data() + largest.size(), kLargest, std::chars_format::fixed).ptr;
  std::string_view digits(digits_.data(), count_);
  digits.remove_suffix(digits.size() - 1 - digits.find_last_not_of('0'));
  return digits > std::string_view(largest.data(), static_cast<std::size_t>(end - largest.data()));
}

char CollectedDigits::DigitAt(std::int64_t pIndex) const noexcept {
  return pIndex >= 0 && pIndex < static_cast<std::int64_t>(count_) ? digits_[static_cast<std::size_t>(pIndex)] : '0';
}

bool CollectedDigits::AnyBeyond(std::int64_t pIndex) const noexcept {
  const std::string_view digits(digits_.data(), count_);
  return leftOut_ || digits.find_first_not_of('0', static_cast<std::size_t>(pIndex + 1)) != std::string_view::npos;
}

bool CollectedDigits::ToNumber(bool pNegative, std::int32_t& pValue) const noexcept {
  constexpr std::int64_t kLongDigits = 10;
  const std::int64_t point = count_ > 0 ? Point() : 0;
  if (point > kLongDigits) return false;
  std::int64_t value = 0;
  for (std::int64_t i = 0; i < point; ++i) value = value * 10 + (DigitAt(i) - '0');

  const char next = DigitAt(point);
  if (next > '5' || (next == '5' && (AnyBeyond(point) || value % 2 != 0))) ++value;
  if (pNegative) value = -value;
  if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max())
    return false;
  pValue = static_cast<std::int32_t>(value);
  return true;
}

void TakeExponentDigits(std::u16string_view& pRest, std::int32_t& pExponent) noexcept {
  constexpr std::int32_t kEnough = 100'000'000;
  for (; !pRest.empty() && IsDecimalDigit(pRest.front()); pRest.remove_prefix(1))
    if (pExponent < kEnough) pExponent = pExponent * 10 + (pRest.front() - u'0');
}

}  // namespace qzbase::runtime
