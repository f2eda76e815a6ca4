// Memory in amounts that a caller or a file asks for: error 7 (out of memory) where there is not so much.
//
//   WithMemory([&] { slots.resize(count); });
//   Grow(bytes, needed, 2 * bytes.size());  // doubles, and takes only what is needed where that is too much
#pragma once

#include <cstddef>
#include <new>
#include <stdexcept>
#include <utility>

#include "qzbase/runtime/AutomationError.h"

namespace qzbase::runtime {

template <class Call>
decltype(auto) WithMemory(Call&& pCall) {
  try {
    return std::forward<Call>(pCall)();
  } catch (const std::bad_alloc&) {
    Raise(RuntimeError::OutOfMemory);
  } catch (const std::length_error&) {
    Raise(RuntimeError::OutOfMemory);
  }
}

// Gives a vector `pWanted` elements, or `pNeeded` where memory does not suffice. Unchanged when it raises.
template <class Vector>
void Grow(Vector& pVector, std::size_t pNeeded, std::size_t pWanted) {
  try {
    pVector.resize(pWanted);
  } catch (const std::exception&) {  // std::bad_alloc or std::length_error
    WithMemory([&] {
      pVector.reserve(pNeeded);  // `resize` alone would ask for twice the memory once more
      pVector.resize(pNeeded);
    });
  }
}

}  // namespace qzbase::runtime
