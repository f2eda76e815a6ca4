// What is common to all vectors: a size, and slots counted from 1 that come in blocks (BlockGrowth.h).
//
// The capacity is the number of slots that can be read and written, whether they hold elements or not; outside them
// error 9 (subscript out of range) is raised. A slot that was never written holds zero, "" or false and takes no
// memory: a block size of a thousand million costs nothing. Memory grows by doubling, up to the capacity. Slots cut off
// by a smaller capacity are forgotten.
//
// A change of size sets the size first: where the storage then fails to follow, the new size stays. Deleting, sorting
// and copying over elements without slots raise error 9 before anything is moved.
//
// Error 7 (out of memory) is raised where memory does not suffice.
#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "qzbase/data/BlockGrowth.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Memory.h"

namespace qzbase {

template <class T>
class BlockStorage {
 public:
  using Slots = std::vector<T>;
  using SlotValue = typename Slots::const_reference;

  explicit BlockStorage(std::int32_t pBlockSize) : capacity_(pBlockSize), blockSize_(pBlockSize) {}

  std::int32_t Size() const noexcept { return size_; }
  std::int32_t Capacity() const noexcept { return capacity_; }

  void LetSize(std::int32_t pSize) {
    size_ = pSize;
    ResizeStorage();
  }

  void LetBlockSize(std::int32_t pBlockSize) {
    blockSize_ = pBlockSize;
    ResizeStorage();
  }

  // Exactly so many slots, whatever the block size. Error 9 below one.
  void ReDim(std::int32_t pCapacity);

  SlotValue Slot(std::int32_t pIndex) const {
    const auto offset = static_cast<std::size_t>(std::int64_t{pIndex} - 1);
    return offset < slots_.size() ? slots_[offset] : Unwritten(pIndex);
  }

  void Store(std::int32_t pIndex, T pValue) {
    MakeSlots(pIndex);
    slots_[Offset(pIndex)] = std::move(pValue);
  }

  // Moves the elements from `pAtPos` on, the last one excepted, up by one and stores the value there; at the last
  // element when `pAtPos` is below 1 or past it. The size has been raised before.
  void Insert(std::int32_t pAtPos, T pValue);

  // Moves the elements behind `pIndex` down by one and lowers the size, even where there is none to move.
  void Delete(std::int32_t pIndex);

  // Copies the elements of other storage into the first slots. The size has been set before.
  void CopyElements(const BlockStorage& pSource);
  void CopyElements(const Slots& pSource) { CopyFirst(pSource, pSource.size()); }

  // The elements, side by side.
  std::span<T> Elements() requires(!std::same_as<T, bool>) {
    if (size_ < 1) return {};
    MakeSlots(size_);
    return std::span(slots_).first(static_cast<std::size_t>(size_));
  }

  // Gives each element what `pMake` makes, one after the other; those behind one that fails keep what they hold.
  template <class Make>
  void MakeElements(Make pMake) requires(!std::same_as<T, bool>);

  // Those of them that take memory; all others hold zero, "" or false.
  std::span<const T> WrittenElements() const requires(!std::same_as<T, bool>) {
    const auto size = static_cast<std::size_t>(std::max(size_, 0));
    return std::span(slots_).first(std::min(size, slots_.size()));
  }

  // All slots, up to the capacity.
  Slots AllSlots() const {
    return runtime::WithMemory([this] {
      Slots slots;
      slots.reserve(static_cast<std::size_t>(capacity_));
      slots.assign(slots_.begin(), slots_.end());
      slots.resize(static_cast<std::size_t>(capacity_));
      return slots;
    });
  }

 private:
  static constexpr std::size_t kFirstSlots = 4;

  static std::size_t Offset(std::int32_t pIndex) noexcept { return static_cast<std::size_t>(pIndex) - 1; }
  auto At(std::int32_t pIndex) { return slots_.begin() + (pIndex - 1); }

  void CheckIndex(std::int32_t pIndex) const {
    if (pIndex < 1 || pIndex > capacity_) runtime::Raise(runtime::RuntimeError::SubscriptOutOfRange);
  }

  SlotValue Unwritten(std::int32_t pIndex) const {
    CheckIndex(pIndex);
    static const T zero{};
    return zero;
  }

  void ResizeStorage() {
    const std::int32_t capacity = BlockCapacity(capacity_, size_, blockSize_);
    if (capacity != capacity_) ReDim(capacity);
  }

  // Gives all slots up to this one memory.
  void MakeSlots(std::int32_t pIndex) {
    if (static_cast<std::size_t>(std::int64_t{pIndex} - 1) >= slots_.size()) GrowTo(pIndex);
  }
  void GrowTo(std::int32_t pIndex);
  void CopyFirst(const Slots& pSource, std::size_t pCount);

  Slots slots_;  // at most capacity_
  std::int32_t capacity_;
  std::int32_t size_ = 0;
  std::int32_t blockSize_;
};

template <class T>
void BlockStorage<T>::ReDim(std::int32_t pCapacity) {
  if (pCapacity < 1) runtime::Raise(runtime::RuntimeError::SubscriptOutOfRange);
  if (const auto count = static_cast<std::size_t>(pCapacity); count < slots_.size()) {
    slots_.resize(count);
    if (count < slots_.capacity() / 4) slots_.shrink_to_fit();
  }
  capacity_ = pCapacity;
}

template <class T>
void BlockStorage<T>::GrowTo(std::int32_t pIndex) {
  CheckIndex(pIndex);
  const auto needed = static_cast<std::size_t>(pIndex);
  const std::size_t wanted = std::max({needed, 2 * slots_.size(), kFirstSlots});
  runtime::Grow(slots_, needed, std::min(wanted, static_cast<std::size_t>(capacity_)));
}

// Elements without memory are made where they are to be: writing zeros first would touch the memory twice.
template <class T>
template <class Make>
void BlockStorage<T>::MakeElements(Make pMake) requires(!std::same_as<T, bool>) {
  if (size_ < 1) return;
  CheckIndex(size_);
  const auto size = static_cast<std::size_t>(size_);
  if (size > slots_.capacity()) runtime::WithMemory([&] { slots_.reserve(size); });
  const std::size_t written = std::min(size, slots_.size());
  for (std::size_t i = 0; i < written; ++i) slots_[i] = pMake();
  while (slots_.size() < size) slots_.emplace_back(pMake());
}

template <class T>
void BlockStorage<T>::Insert(std::int32_t pAtPos, T pValue) {
  const std::int32_t place = pAtPos < 1 || pAtPos > size_ ? size_ : pAtPos;
  MakeSlots(size_);
  std::move_backward(At(place), At(size_), At(size_) + 1);
  slots_[Offset(place)] = std::move(pValue);
}

template <class T>
void BlockStorage<T>::Delete(std::int32_t pIndex) {
  if (pIndex < size_) {
    CheckIndex(pIndex);
    MakeSlots(size_);
    std::move(At(pIndex) + 1, At(size_) + 1, At(pIndex));
    slots_[Offset(size_)] = slots_[Offset(size_ - 1)];  // the slot behind the elements keeps its content
  }
  LetSize(runtime::CheckedNarrow<std::int32_t>(std::int64_t{size_} - 1));
}

template <class T>
void BlockStorage<T>::CopyElements(const BlockStorage& pSource) {
  if (size_ < 1) return;
  pSource.CheckIndex(size_);
  if (&pSource == this) return;
  const auto size = static_cast<std::size_t>(size_);
  const std::size_t count = std::min(size, pSource.slots_.size());
  CopyFirst(pSource.slots_, count);
  const std::size_t written = std::min(size, slots_.size());
  for (std::size_t i = count; i < written; ++i) slots_[i] = T{};
}

// Where no slot keeps its content all are written once: growing first would fill them with zeros.
template <class T>
void BlockStorage<T>::CopyFirst(const Slots& pSource, std::size_t pCount) {
  if (pCount == 0) return;
  const auto last = static_cast<std::int32_t>(pCount);
  CheckIndex(last);
  const auto end = pSource.begin() + last;
  if (pCount < slots_.size())
    std::copy(pSource.begin(), end, slots_.begin());
  else
    runtime::WithMemory([&] { slots_.assign(pSource.begin(), end); });
}

}  // namespace qzbase
