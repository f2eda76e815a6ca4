// Decimal digits in the order a reader meets them, and the number nearest to them.
//
//   digits 1 2 3, decimals 4 5, exponent -1    12.345 as a double, 12 as a 32-bit integer
//
// Keeps as many digits as can decide how a double is rounded; of the others only whether one was not zero. Lives on
// the stack and allocates nothing.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "qzbase/runtime/Characters.h"

namespace qzbase::runtime {

class CollectedDigits {
 public:
  // Adds the digits at the beginning of `pRest` and takes them off it.
  void TakeDigits(std::u16string_view& pRest) noexcept;
  void BeginDecimals() noexcept { inDecimals_ = true; }
  void SetExponent(std::int32_t pPower) noexcept { exponent_ = pPower; }

  bool IsEmpty() const noexcept { return !any_; }  // not even a zero

  // The nearest double. False, and `pValue` left as it was, when the digits exceed the largest double.
  bool ToNumber(bool pNegative, double& pValue) const noexcept;

  // The nearest integer, a half to the even one. False, and `pValue` left as it was, outside the 32-bit range.
  bool ToNumber(bool pNegative, std::int32_t& pValue) const noexcept;

 private:
  // No double lies so near to the middle of two neighbours that more than 768 digits are needed to tell the side.
  static constexpr std::size_t kKept = 768;
  static constexpr std::size_t kTail = 24;  // room for the digit that stands for those left out, and the exponent

  using Scientific = std::array<char, kKept + kTail>;

  bool ToExact(double& pValue) const noexcept;
  std::size_t Write(Scientific& pText) const noexcept;
  std::int64_t Point() const noexcept { return point_ + exponent_; }
  char DigitAt(std::int64_t pIndex) const noexcept;    // '0' outside the digits
  bool AnyBeyond(std::int64_t pIndex) const noexcept;  // a digit other than zero
  bool ExceedsLargest() const noexcept;

  std::array<char, kKept> digits_;  // the first `count_` are set; never begins with a zero
  std::size_t count_ = 0;
  std::uint64_t whole_ = 0;  // the digits as a number, as long as it has room for them
  std::int64_t point_ = 0;   // 0.digits x 10^(point_ + exponent_)
  std::int32_t exponent_ = 0;
  bool inDecimals_ = false;
  bool any_ = false;
  bool leftOut_ = false;  // a digit other than zero found no room
};

// Continues an exponent with the digits at the beginning of `pRest` and takes them off it. Stops growing far beyond
// what any number needs.
void TakeExponentDigits(std::u16string_view& pRest, std::int32_t& pExponent) noexcept;

}  // namespace qzbase::runtime
