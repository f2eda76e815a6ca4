// A counted list in slots from 1: there is always a slot 1, whatever the count is.
//
//   CountedSlots<double> list;   // Count 0, slot 1
//   list.Append(2.5);            // Count 1
//   list.Resize(0);              // slot 1 keeps 2.5
//
// Positions are checked against the slots, not the count: outside them error 9 is raised. A negative count is kept;
// appending counts it up and raises 9 until there is a slot for the value.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "qzbase/runtime/Array.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Memory.h"

namespace qzbase {

template <class T>
class CountedSlots {
 public:
  std::int32_t Count() const noexcept { return count_; }
  T& operator[](std::int32_t pIdx) { return slots_[pIdx]; }
  const T& operator[](std::int32_t pIdx) const { return slots_[pIdx]; }

  // Contents up to the new count stay. Error 7 where memory does not suffice.
  void Resize(std::int32_t pCount) {
    MakeSlots(pCount);
    count_ = pCount;
  }

  // The slots for a count that is set later.
  void MakeSlots(std::int32_t pCount) {
    runtime::WithMemory([&] { slots_.Elements().resize(static_cast<std::size_t>(std::max(pCount, 1))); });
  }

  void Append(T pValue) {
    Resize(runtime::CheckedNarrow<std::int32_t>(std::int64_t{count_} + 1));
    slots_[count_] = std::move(pValue);
  }

  // Drops all contents, that of slot 1 too.
  void Clear() { *this = CountedSlots(); }

  std::vector<T>& Elements() noexcept { return slots_.Elements(); }

 private:
  runtime::Array<T> slots_{1, 1};
  std::int32_t count_ = 0;
};

}  // namespace qzbase
