// A one-dimensional array with a lower bound of its own, as automation passes arrays about.
//
// A fresh array is unallocated: it has no bounds, and asking for them or for an element raises error 9 (subscript out
// of range), as does every index outside the bounds. Copies are deep.
#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <utility>
#include <vector>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Memory.h"

namespace qzbase::runtime {

template <class T>
class Array {
 public:
  using value_type = T;

  Array() = default;

  // Elements are zero, empty or false. An upper bound of `pLower - 1` gives an allocated array without elements.
  Array(std::int32_t pLower, std::int32_t pUpper) { ReDim(pLower, pUpper); }

  Array(std::int32_t pLower, std::vector<T> pElements)
      : lower_(pLower), allocated_(true), elements_(std::move(pElements)) {
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    if (elements_.size() > static_cast<std::size_t>(pLower > 0 ? kMost - (pLower - 1) : kMost))
      Raise(RuntimeError::OutOfMemory);
  }

  bool IsAllocated() const noexcept { return allocated_; }
  std::int32_t LowerBound() const { return CheckAllocated(), lower_; }
  std::int32_t UpperBound() const {
    return CheckAllocated(), CheckedNarrow<std::int32_t>(std::int64_t{lower_} + Size() - 1);
  }
  std::int32_t Size() const noexcept { return static_cast<std::int32_t>(elements_.size()); }

  typename std::vector<T>::reference operator[](std::int32_t pIndex) { return elements_[Offset(pIndex)]; }
  typename std::vector<T>::const_reference operator[](std::int32_t pIndex) const { return elements_[Offset(pIndex)]; }

  // New bounds, all contents dropped. Error 7 where memory does not suffice.
  void ReDim(std::int32_t pLower, std::int32_t pUpper) {
    const std::int64_t count = std::int64_t{pUpper} - pLower + 1;
    if (count < 0 || count > std::numeric_limits<std::int32_t>::max()) Raise(RuntimeError::SubscriptOutOfRange);
    WithMemory([&] { elements_.assign(static_cast<std::size_t>(count), T{}); });
    lower_ = pLower;
    allocated_ = true;
  }

  const std::vector<T>& Elements() const noexcept { return elements_; }
  std::vector<T>& Elements() noexcept { return elements_; }
  auto begin() const noexcept { return elements_.begin(); }
  auto end() const noexcept { return elements_.end(); }

  bool operator==(const Array&) const = default;

 private:
  void CheckAllocated() const {
    if (!allocated_) Raise(RuntimeError::SubscriptOutOfRange);
  }

  std::size_t Offset(std::int32_t pIndex) const {
    const std::int64_t offset = std::int64_t{pIndex} - lower_;
    if (offset < 0 || offset >= static_cast<std::int64_t>(elements_.size())) Raise(RuntimeError::SubscriptOutOfRange);
    return static_cast<std::size_t>(offset);
  }

  std::int32_t lower_ = 0;
  bool allocated_ = false;
  std::vector<T> elements_;
};

}  // namespace qzbase::runtime
