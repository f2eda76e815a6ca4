// What a number alone asks for: a size without data behind it, and what is made of such a size.
//
// Systems promise memory that they do not have and end the program that uses it, so asking them is no test. More than a
// gibibyte for things that nobody has ever written is error 7 (out of memory), before anything is done.
//
//   CheckDemand(pNrRows, sizeof(Row));   // a thousand million rows: error 7 at once
//   text += u"0;";
//   RepeatEnd(text, 2, 3);               // "0;0;0;0;"
#pragma once

#include <cstddef>
#include <cstdint>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Memory.h"

namespace qzbase::runtime {

inline void CheckDemand(std::int64_t pCount, std::size_t pBytesEach) {
  constexpr std::int64_t kMostBytes = std::int64_t{1} << 30;
  if (pBytesEach > 0 && pCount > kMostBytes / static_cast<std::int64_t>(pBytesEach)) Raise(RuntimeError::OutOfMemory);
}

// Puts the last `pLength` elements `pTimes` more times behind them.
template <class Elements>
void RepeatEnd(Elements& pElements, std::size_t pLength, std::int32_t pTimes) {
  if (pTimes < 1) return;
  CheckDemand(pTimes, pLength * sizeof(typename Elements::value_type));
  const std::size_t size = pElements.size();
  WithMemory([&] { pElements.resize(size + pLength * static_cast<std::size_t>(pTimes)); });
  for (std::size_t i = size; i < pElements.size(); ++i) pElements[i] = pElements[i - pLength];
}

}  // namespace qzbase::runtime
