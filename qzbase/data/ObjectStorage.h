// Slots for objects that a list makes itself: none of its elements is to stay without one.
//
//   storage.Resize(5, [] { return New<CDblVector>(); });   // five elements; those that had none have a new one
//
// Growing one by one takes a step each: so many first slots are known to hold an object.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>

#include "qzbase/data/BlockStorage.h"
#include "qzbase/runtime/Demand.h"
#include "qzbase/runtime/Memory.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

template <class T>
class ObjectStorage : public BlockStorage<runtime::Ref<T>> {
  using Base = BlockStorage<runtime::Ref<T>>;

 public:
  // There are as many slots as elements, at least one.
  ObjectStorage() : Base(1) {}

  void LetSize(std::int32_t pSize) {
    filled_ = std::clamp(pSize, 0, filled_);
    Base::LetSize(pSize);
  }

  // Sets the size and gives every element that has none an object. A number of objects for which there is no memory is
  // refused before anything changes; where making one fails, those behind it have none until the next time.
  template <class Make>
  void Resize(std::int32_t pSize, Make pMake) {
    constexpr std::size_t kCounts = 4 * sizeof(void*);  // that a reference keeps beside its object
    runtime::CheckDemand(std::int64_t{pSize} - filled_, sizeof(T) + sizeof(runtime::Ref<T>) + kCounts);
    LetSize(pSize);
    for (auto& object : Base::Elements().subspan(static_cast<std::size_t>(filled_))) {
      if (!object) object = runtime::WithMemory(pMake);
      ++filled_;
    }
  }

  void Store(std::int32_t pIndex, runtime::Ref<T> pObject) {
    const bool isSet = pObject != nullptr;
    Base::Store(pIndex, std::move(pObject));
    if (!isSet) filled_ = std::min(filled_, pIndex - 1);
  }

  void Delete(std::int32_t pIndex) {
    Base::Delete(pIndex);
    filled_ = std::max(filled_ - 1, 0);
  }

  // To be put into another order.
  std::span<runtime::Ref<T>> Elements() {
    filled_ = 0;
    return Base::Elements();
  }

 private:
  std::int32_t filled_ = 0;
};

}  // namespace qzbase
