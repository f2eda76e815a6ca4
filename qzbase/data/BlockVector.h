// A typed vector that grows in blocks, has an invalid value and sorts: CDblVector, CLngVector and CStrVector.
//
// The invalid value marks a missing element. `Size` counts it, `NrValid` does not.
#pragma once

#include <cstdint>

#include "qzbase/data/TypedVector.h"
#include "qzbase/data/VectorSort.h"

namespace qzbase {

template <class Self, class Element>
class BlockVector : public TypedVector<Self, Element> {
  using Base = TypedVector<Self, Element>;

 public:
  using Base::Size;
  using Base::Value;
  using typename Base::Argument;

  // The number of slots by which storage grows, 16 at first; storage follows at once. Error 11 for 0, 9 or
  // 6 below.
  void LetBlockSize(std::int32_t pBlockSize) { this->storage_.LetBlockSize(pBlockSize); }

  void AddUniqueValue(Argument pValue) {
    if (this->Index(pValue) == -1) this->AddValue(pValue);
  }

  // VectorSort.h says where what comes to stand.
  void Sort(bool pAscending = true) {
    runtime::WithMemory([&] { SortElements(this->storage_.Elements(), pAscending); });
  }

  std::int32_t NrValid() const;
};

}  // namespace qzbase
