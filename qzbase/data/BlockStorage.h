// What is common to all vectors and lists: a size, and slots counted from 1 that come in blocks (BlockGrowth.h).
//
// The capacity is the number of slots that can be read and written, whether they hold elements or not; outside them
// error 9 (subscript out of range) is raised. Slots cut off by a smaller capacity are forgotten.
//
// A slot that was never written holds zero, "" or false and takes no memory: a block size of a thousand million costs
// nothing. Those that take memory come first, and whoever walks the slots meets them one by one and all others as one:
//
//   storage.Walk(storage.Size(), [&](double value) { sum += value; }, [](double, std::int32_t) {});
//   storage.Find(0, storage.Size(), [](double value) { return value > 5; });
//
// Writing gives memory to all slots up to the written one, by doubling up to the capacity.
//
// A change of size sets the size first: where the storage then fails to follow, the new size stays. Elements without
// slots are what remains: walking, deleting, sorting and copying do what they can with the slots that there are, and
// then raise error 9.
//
// Error 7 (out of memory) is raised where memory does not suffice, and at once where a write would give a gibibyte of
// memory to slots that nobody has written (Demand.h).
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
#include "qzbase/runtime/Demand.h"
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

  // The size alone, as a record says it before anything else is known; the storage follows with the next let.
  void AnnounceSize(std::int32_t pSize) noexcept { size_ = pSize; }

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

  // Takes the element out and puts it in at the other place; those between move by one towards the old one.
  void Move(std::int32_t pFrom, std::int32_t pTo);

  // Copies the first slots of other storage into its own. Error 9 where one of the two has fewer, behind those.
  void CopySlots(const BlockStorage& pSource, std::int32_t pCount);
  void CopySlots(const Slots& pSource) { CopyFirst(pSource, pSource.size()); }

  // How many of the first `pCount` slots there are, and how many of these take memory.
  std::int32_t Reached(std::int32_t pCount) const noexcept { return std::clamp(pCount, 0, std::max(capacity_, 0)); }
  std::int32_t Written(std::int32_t pCount) const noexcept {
    return static_cast<std::int32_t>(std::min(static_cast<std::size_t>(Reached(pCount)), slots_.size()));
  }

  // Error 9 where there are fewer slots.
  void CheckCount(std::int32_t pCount) const {
    if (pCount > capacity_) runtime::Raise(runtime::RuntimeError::SubscriptOutOfRange);
  }

  // Calls `pEach(value)` for each of the first slots that takes memory, then `pRest(zero, count)` for all others.
  template <class Each, class Rest>
  void Walk(std::int32_t pCount, Each pEach, Rest pRest) const;

  // The first slot behind `pAfter` and up to `pLast` whose value passes the test, -1 where there is none. The first one
  // that takes no memory is tested for all.
  template <class Test>
  std::int32_t Find(std::int32_t pAfter, std::int32_t pLast, Test pTest) const;

  // The first slots, side by side, as many as there are; all get memory.
  std::span<T> FirstSlots(std::int32_t pCount) requires(!std::same_as<T, bool>) {
    const std::int32_t count = Reached(pCount);
    if (count > 0) MakeSlots(count);
    return std::span(slots_).first(static_cast<std::size_t>(count));
  }
  std::span<T> Elements() requires(!std::same_as<T, bool>) { return FirstSlots(size_); }

  // Those of them that take memory.
  std::span<const T> WrittenSlots(std::int32_t pCount) const requires(!std::same_as<T, bool>) {
    return std::span(slots_).first(static_cast<std::size_t>(Written(pCount)));
  }
  std::span<const T> WrittenElements() const requires(!std::same_as<T, bool>) { return WrittenSlots(size_); }

  // Gives each element what `pMake` makes, one after the other; those behind one that fails keep what they hold.
  template <class Make>
  void MakeElements(Make pMake) requires(!std::same_as<T, bool>);

  // All slots, up to the capacity.
  Slots AllSlots() const {
    CheckDemandFor(static_cast<std::size_t>(capacity_));
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

  static SlotValue Zero() noexcept {
    static const T zero{};
    return zero;
  }
  SlotValue Unwritten(std::int32_t pIndex) const {
    CheckIndex(pIndex);
    return Zero();
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
  void CheckDemandFor(std::size_t pSlots) const {
    const std::int64_t more = static_cast<std::int64_t>(pSlots) - static_cast<std::int64_t>(slots_.size());
    if constexpr (std::same_as<T, bool>)
      runtime::CheckDemand(more / 8, 1);
    else
      runtime::CheckDemand(more, sizeof(T));
  }
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
  CheckDemandFor(needed);
  const std::size_t wanted = std::max({needed, 2 * slots_.size(), kFirstSlots});
  runtime::Grow(slots_, needed, std::min(wanted, static_cast<std::size_t>(capacity_)));
}

template <class T>
template <class Each, class Rest>
void BlockStorage<T>::Walk(std::int32_t pCount, Each pEach, Rest pRest) const {
  const std::int32_t written = Written(pCount);
  for (std::size_t i = 0; i < static_cast<std::size_t>(written); ++i) pEach(slots_[i]);
  if (const std::int32_t rest = Reached(pCount) - written; rest > 0) pRest(Zero(), rest);
  CheckCount(pCount);
}

template <class T>
template <class Test>
std::int32_t BlockStorage<T>::Find(std::int32_t pAfter, std::int32_t pLast, Test pTest) const {
  if (pAfter >= pLast) return -1;
  std::int32_t i = pAfter;
  for (const std::int32_t written = Written(pLast); i < written; ++i)
    if (pTest(slots_[static_cast<std::size_t>(i)])) return i + 1;
  if (i < Reached(pLast) && pTest(Zero())) return i + 1;
  CheckCount(pLast);
  return -1;
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

// Slots without memory move as what they are: only the one behind the last that has some gets its content.
template <class T>
void BlockStorage<T>::Insert(std::int32_t pAtPos, T pValue) {
  const std::int32_t place = pAtPos < 1 || pAtPos > size_ ? size_ : pAtPos;
  CheckIndex(place);
  const std::int32_t last = Written(size_ - 1);
  MakeSlots(std::max(place, last + 1));
  if (last >= place) std::move_backward(At(place), At(last) + 1, At(last) + 2);
  slots_[Offset(place)] = std::move(pValue);
}

template <class T>
void BlockStorage<T>::Delete(std::int32_t pIndex) {
  if (pIndex < size_) {
    CheckIndex(pIndex);
    const std::int32_t last = Written(size_);
    const bool takesZero = last < Reached(size_);  // from the slot behind it
    if (pIndex <= last) {
      T behind = takesZero ? T{} : T(slots_[Offset(last)]);  // the slot behind the elements keeps its content
      std::move(At(pIndex) + 1, At(last) + 1, At(pIndex));
      slots_[Offset(last)] = std::move(behind);
    }
    CheckCount(size_);
  }
  LetSize(runtime::CheckedNarrow<std::int32_t>(std::int64_t{size_} - 1));
}

template <class T>
void BlockStorage<T>::Move(std::int32_t pFrom, std::int32_t pTo) {
  CheckIndex(pFrom);
  CheckIndex(pTo);
  if (std::min(pFrom, pTo) > Written(capacity_)) return;
  MakeSlots(std::max(pFrom, pTo));
  if (pFrom < pTo)
    std::rotate(At(pFrom), At(pFrom) + 1, At(pTo) + 1);
  else
    std::rotate(At(pTo), At(pFrom), At(pFrom) + 1);
}

template <class T>
void BlockStorage<T>::CopySlots(const BlockStorage& pSource, std::int32_t pCount) {
  const std::int32_t count = Reached(pSource.Reached(pCount));
  if (&pSource != this) {
    const std::int32_t written = pSource.Written(count);
    CopyFirst(pSource.slots_, static_cast<std::size_t>(written));
    std::fill(slots_.begin() + written, slots_.begin() + Written(count), T{});
  }
  pSource.CheckCount(pCount);
  CheckCount(pCount);
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
