// Where errors end: how the library calls what may fail and goes on all the same.
//
//   Attempt([&] { list.Call(u"AddItem", line); });                      a failure is nobody's concern
//   if (!Attempt([&] { number = LeadingNumber(text); })) ...            whether it went well
//   return Attempt([&] { mean = MeanOf(vector); }).Error();             the number of the error, 0 for none
//   return Attempt([&] { return ToDouble(value); }).value_or(0);        what the call gave
//
// The thread's last error stays the one that it was, whatever the call does: it may be the very one that is being
// shown, and nobody learns of the other. No other file of the library catches errors to drop them
// (cmake/Catches.cmake).
#pragma once

#include <concepts>
#include <cstdint>
#include <exception>
#include <optional>
#include <type_traits>
#include <utility>

#include "qzbase/runtime/AutomationError.h"

namespace qzbase::runtime {

// How a call without a result ended.
class Outcome {
 public:
  Outcome() = default;
  explicit Outcome(std::int32_t pError) : error_(pError) {}

  std::int32_t Error() const noexcept { return error_; }
  explicit operator bool() const noexcept { return error_ == 0; }

 private:
  std::int32_t error_ = 0;
};

// An `Outcome` for a call without a result, else an optional result.
template <class Call>
auto Attempt(Call&& pCall) {
  using Result = std::invoke_result_t<Call>;
  const LastErrorKept kept;
  if constexpr (std::same_as<Result, void>) {
    try {
      std::forward<Call>(pCall)();
      return Outcome();
    } catch (const std::exception& error) {
      return Outcome(ErrorNumberOf(error));
    }
  } else {
    try {
      return std::optional<Result>(std::forward<Call>(pCall)());
    } catch (const std::exception&) {
      return std::optional<Result>();
    }
  }
}

}  // namespace qzbase::runtime
