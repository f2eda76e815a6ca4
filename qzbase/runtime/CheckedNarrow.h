// Integer arithmetic as the runtime does it: computed wide, brought back to its width, error 6 (overflow) outside it.
//
//   size_ = CheckedNarrow<std::int32_t>(std::int64_t{size_} + count);
#pragma once

#include <cstdint>
#include <utility>

#include "qzbase/runtime/AutomationError.h"

namespace qzbase::runtime {

template <class To>
constexpr To CheckedNarrow(std::int64_t pValue) {
  if (!std::in_range<To>(pValue)) Raise(RuntimeError::Overflow);
  return static_cast<To>(pValue);
}

}  // namespace qzbase::runtime
