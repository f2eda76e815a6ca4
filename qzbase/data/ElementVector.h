// A one-based, growable list of values: what the typed vectors (TypedVector.h) and the list of variants (CVector.h)
// have in common.
//
//   CDblVector vector;                  // (): 16 slots, no elements
//   vector.SetFromString(u"(3;1;2)");
//   vector.Sort();                      // (1;2;3)
//   vector.InsertValue(1, 0.5);         // (0.5;1;2;3)
//   vector.Index(2);                    // 3
//
// `Size` counts the elements; the storage behind them has slots in blocks (BlockStorage.h). Indices are checked against
// the slots and not against the size: a slot behind the elements can be read and written, and becomes an element with
// what it holds when the size grows over it. Outside the slots error 9 (subscript out of range) is raised.
//
// Record: tag "VE#1", the size as a long, the elements, tag "\VE".
//
// Raises error 6 where a size leaves 32 bits or the storage has more than 32,767 blocks, 7 where memory does not
// suffice, and what the buffer raises. What was reached before an error stays. A text or a record of elements that were
// never written, too large to be had, is refused before it is begun.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "qzbase/data/BlockStorage.h"
#include "qzbase/data/VectorElements.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

// `Self` is the vector's class, `ElementTraits` its row of traits.
template <class Self, class ElementTraits>
class ElementVector : public runtime::Object {
 public:
  using Element = ElementTraits;
  using Type = typename Element::Type;
  using Argument = typename Element::Argument;
  using Result = typename Element::Result;

  std::int32_t Size() const noexcept { return storage_.Size(); }
  void LetSize(std::int32_t pSize) { storage_.LetSize(pSize); }

  // "(1;2;3)", in the user's locale.
  std::u16string GetString() const;

  Result Value(std::int32_t pIndex) const { return storage_.Slot(pIndex); }
  void LetValue(std::int32_t pIndex, Argument pValue) { storage_.Store(pIndex, Type(pValue)); }

  // A position below 1 or past the end appends.
  void InsertValue(std::int32_t pAtPos, Argument pValue = Element::kDefault) {
    Type value(pValue);  // the argument may refer to a slot
    LetSize(runtime::CheckedNarrow<std::int32_t>(std::int64_t{Size()} + 1));
    if constexpr (Element::kTrimmedByInsert) storage_.ReDim(std::max(Size(), 1));
    storage_.Insert(pAtPos, std::move(value));
  }
  void AddValue(Argument pValue) { InsertValue(0, pValue); }

  // The index is not checked against the size: one past it drops the last element.
  void DeleteValue(std::int32_t pIndex) { storage_.Delete(pIndex); }

  // The first element from `pStartIndex` on that equals the value, -1 when there is none.
  std::int32_t Index(Argument pValue, std::int32_t pStartIndex = 1) const;

  // The block size is each vector's own: not copied, not compared, not saved.
  void CopyFrom(const Self& pSource);
  runtime::Ref<Self> GetCopy() const;
  bool IsEqual(const Self& pCompare) const;

  // The same for slots, whatever the sizes: takes over as many as the source has elements; compares so many first ones.
  // Error 9 where one of the two has fewer.
  void CopySlots(const Self& pSource);
  bool EqualSlots(const Self& pCompare, std::int32_t pCount) const;

  // Without a buffer both do nothing.
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false) const;
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 protected:
  BlockStorage<Type> storage_{Element::kBlockSize};

 private:
  // The elements alone; the size has been written and read before.
  virtual void SaveElements(CBuffer& pBuffer) const = 0;
  virtual void LoadElements(CBuffer& pBuffer) = 0;
  // What each takes of a buffer at least (CBuffer::NextCount).
  virtual std::int32_t LeastBytes() const { return 1; }
};

}  // namespace qzbase
