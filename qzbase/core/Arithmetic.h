// Arithmetic that fails as automation does: where the processor would give an infinity out of finite numbers or leave
// the real numbers, an error is raised.
//
//   Divide(1, 0)           error 11, division by zero
//   Logarithm(0)           error 5, invalid argument
//   SquareRoot(-1)         error 5
//   Multiply(1e300, 1e9)   error 6, overflow
//
// Operands that are infinite or not a number already go through.
#pragma once

#include <cmath>
#include <cstdint>

#include "qzbase/runtime/AutomationError.h"

namespace qzbase {

namespace detail {
// The result, unless finite operands gave an infinite one.
template <class... Operands>
double Bounded(double pResult, Operands... pOperands) {
  if (std::isinf(pResult) && (std::isfinite(pOperands) && ...)) runtime::Raise(runtime::RuntimeError::Overflow);
  return pResult;
}
}  // namespace detail

inline double Add(double pLeft, double pRight) {
  return detail::Bounded(pLeft + pRight, pLeft, pRight);
}

inline double Multiply(double pLeft, double pRight) {
  return detail::Bounded(pLeft * pRight, pLeft, pRight);
}

inline double Divide(double pLeft, double pRight) {
  if (pRight == 0) runtime::Raise(runtime::RuntimeError::DivisionByZero);
  return detail::Bounded(pLeft / pRight, pLeft, pRight);
}

inline double Logarithm(double pValue) {
  if (pValue <= 0) runtime::Raise(runtime::RuntimeError::InvalidArgument);
  return std::log(pValue);
}

inline double SquareRoot(double pValue) {
  if (pValue < 0) runtime::Raise(runtime::RuntimeError::InvalidArgument);
  return std::sqrt(pValue);
}

inline double Exponential(double pValue) {
  return detail::Bounded(std::exp(pValue), pValue);
}

// The double nearest to 10^pExponent, the same on every system; 0 below the smallest one, error 6 above the greatest.
double PowerOfTen(std::int32_t pExponent);

inline double Sign(double pValue) {
  return static_cast<double>(pValue > 0) - static_cast<double>(pValue < 0);
}

}  // namespace qzbase
