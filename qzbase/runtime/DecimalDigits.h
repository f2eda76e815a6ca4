// A number as decimal digits: what every text of a number is made from.
//
//   1234.5   -> digits "12345", point 4      0.1234.. x 10^point
//   0.00125  -> digits "125",   point -2
//   0        -> digits "",      point 0
//
// No digits are given for infinities and not-a-number; `IsFinite` tells.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qzbase::runtime {

class DecimalDigits {
 public:
  static constexpr std::int32_t kMaxDigits = 17;
  static constexpr std::int32_t kTextDigits = 15;  // what a double's text shows
  static constexpr std::int32_t kFloatDigits = 7;  // and a single's

  // The nearest decimal number of at most `pMaxDigits` digits (1 to 17), trailing zeros cut; a tie goes to the even
  // digit of the exact binary value.
  explicit DecimalDigits(double pValue, std::int32_t pMaxDigits = kTextDigits);

  bool IsNegative() const noexcept { return negative_; }  // also of -0.0
  bool IsFinite() const noexcept { return finite_; }
  bool IsZero() const noexcept { return count_ == 0 && finite_; }
  std::string_view Digits() const noexcept { return {digits_.data(), static_cast<std::size_t>(count_)}; }  // '0' to '9'
  std::int32_t Point() const noexcept { return point_; }

  bool operator==(const DecimalDigits& pOther) const noexcept {
    return negative_ == pOther.negative_ && finite_ == pOther.finite_ && point_ == pOther.point_ &&
           Digits() == pOther.Digits();
  }

  // The digit of value 10^pPower, '0' outside the digits: DigitAt(0) is the ones, DigitAt(-1) the tenths.
  char DigitAt(std::int32_t pPower) const noexcept {
    const std::int32_t index = point_ - 1 - pPower;
    return index >= 0 && index < count_ ? digits_[static_cast<std::size_t>(index)] : '0';
  }

  // Moves the point: the same digits times 10^pPower.
  void Scale(std::int32_t pPower) noexcept {
    if (count_ > 0) point_ += pPower;
  }

  // Rounds to `pDecimals` digits behind the point (negative: before it), halves away from zero.
  void RoundHalfAway(std::int32_t pDecimals) noexcept;

 private:
  void Read(std::string_view pText) noexcept;  // "d.ddde-dd"
  void CutTrailingZeros() noexcept;

  std::array<char, kMaxDigits + 1> digits_{};
  std::int32_t count_ = 0;
  std::int32_t point_ = 0;
  bool negative_ = false;
  bool finite_ = true;
};

}  // namespace qzbase::runtime
