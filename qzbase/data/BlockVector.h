// A vector that grows in blocks and sorts: every one but CBoolVector. `Base` is its ElementVector or TypedVector.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

#include "qzbase/data/TypedVector.h"
#include "qzbase/data/VectorSort.h"

namespace qzbase {

template <class Base>
class BlockVector : public Base {
 public:
  // The number of slots by which storage grows, 16 at first; storage follows at once. Error 11 for 0, 9 or 6 below 0.
  void LetBlockSize(std::int32_t pBlockSize) { this->storage_.LetBlockSize(pBlockSize); }

  void AddUniqueValue(typename Base::Argument pValue) {
    if (this->Index(pValue) == -1) this->AddValue(pValue);
  }

  // VectorSort.h says where what comes to stand.
  void Sort(bool pAscending = true) {
    runtime::WithMemory([&] {
      auto& storage = this->storage_;
      SortElements(storage.FirstSlots(SlotsToSort(storage, storage.Size(), pAscending)), pAscending);
      storage.CheckCount(storage.Size());
    });
  }
};

}  // namespace qzbase
