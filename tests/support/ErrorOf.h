// The number of the error that a call raises, 0 when it returns.
//
//   EXPECT_EQ(ErrorOf([&] { vector.Value(17); }), kSubscript);
#pragma once

#include <cstdint>

#include "qzbase/core/ModError.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase::tests {

constexpr std::int32_t NumberOf(runtime::RuntimeError pError) {
  return static_cast<std::int32_t>(pError);
}

inline constexpr std::int32_t kInvalidArgument = NumberOf(runtime::RuntimeError::InvalidArgument);
inline constexpr std::int32_t kOverflow = NumberOf(runtime::RuntimeError::Overflow);
inline constexpr std::int32_t kOutOfMemory = NumberOf(runtime::RuntimeError::OutOfMemory);
inline constexpr std::int32_t kSubscript = NumberOf(runtime::RuntimeError::SubscriptOutOfRange);
inline constexpr std::int32_t kDivisionByZero = NumberOf(runtime::RuntimeError::DivisionByZero);
inline constexpr std::int32_t kTypeMismatch = NumberOf(runtime::RuntimeError::TypeMismatch);
inline constexpr std::int32_t kObjectNotSet = NumberOf(runtime::RuntimeError::ObjectNotSet);

inline std::int32_t NumberOf(BuiltInError pError) {
  return ModError::ErrCodeOf(ModError::IndexOf(pError));
}

template <class Call>
std::int32_t ErrorOf(Call&& pCall) {
  try {
    pCall();
  } catch (const runtime::AutomationError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace qzbase::tests
