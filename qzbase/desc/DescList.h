// A one-based list of descriptors, looked up by position or by ID: CVarDescs and CEntryDescs.
//
//   auto descs = New<CVarDescs>();      // Size 0
//   descs->LetSize(2);                  // two descriptors with their defaults
//   descs->DescRef(1)->LetID(u"Mass");
//   descs->AddDesc(*descs->DescRef(1)); // a copy, at 3
//   descs->Index(u"mass");              // 1
//
// Growing fills the new slots with new descriptors, shrinking drops those beyond the end. There is always a slot 1,
// which holds none at first and when the size becomes 0 or less. Positions are checked against the slots: outside them
// error 9 is raised. A slot that holds none, because it was set to nothing, raises 91 when its descriptor is used; the
// next let of the size gives it a new one.
//
// Record: the opening tag of the class ("VV#1", "DV#1"), the size as a long, each descriptor's record, the closing tag.
//
// Raises error 6 where the size leaves 32 bits, 7 where memory does not suffice, and what descriptors and buffer raise.
// What was reached before an error stays: a list that was loaded in part has its new size. A size for whose descriptors
// there is no memory (runtime/Demand.h), and an insertion of one that cannot be copied, change nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/Array.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

// `Self` is the list's class, `Traits` says what its elements are and which tag its record has.
template <class Self, class Traits>
class DescList : public runtime::Object {
 public:
  using Element = typename Traits::Element;

  std::int32_t Size() const noexcept { return size_; }
  void LetSize(std::int32_t pSize);  // kept as it is where it is negative

  // Stores the object itself, which may be unset; lets the stored one take over the contents; gives a copy of it.
  void SetDesc(std::int32_t pIndex, runtime::Ref<Element> pDesc);
  void LetDesc(std::int32_t pIndex, const Element& pDesc) { At(pIndex).CopyFrom(pDesc); }
  runtime::Ref<Element> Desc(std::int32_t pIndex) const { return At(pIndex).GetCopy(); }

  // The stored object itself, unset where the slot holds none. The reference is good until the list changes.
  const runtime::Ref<Element>& DescRef(std::int32_t pIndex) const { return slots_[pIndex]; }

  // The same for the library's own classes: error 91 where the slot holds none.
  Element& At(std::int32_t pIndex) const;

  void AddDesc(const Element& pDesc) { InsertDesc(pDesc, 0); }

  // Every slot from the one position towards the other takes over the object of its upper neighbour, and nothing is
  // stored in the last one: an object is lost, and slots share one afterwards. Callers rely on it.
  //
  //   A B C   MoveDesc 1, 3   B C C
  //   A B C   MoveDesc 3, 1   C C C
  void MoveDesc(std::int32_t pOldPos, std::int32_t pNewPos);

  // Inserts a copy and gives its position. A position below 1 or past the end appends.
  std::int32_t InsertDesc(const Element& pDesc, std::int32_t pAtPos);

  // A position past the end drops the last descriptor. An empty list stays as it is, whatever the position.
  void DeleteDesc(std::int32_t pIndex);

  // The first descriptor with this ID, ignoring case; -1 where there is none.
  std::int32_t Index(std::u16string_view pID) const;

  std::u16string GetString() const;  // "(...);(...)"

  void CopyFrom(const Self& pSource);
  runtime::Ref<Self> GetCopy() const;
  bool IsEqual(const Self& pCompare) const;
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false);
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 private:
  void Resize(std::int32_t pSize);

  runtime::Array<runtime::Ref<Element>> slots_{1, 1};  // to max(size_, 1)
  std::int32_t size_ = 0;
  bool mayHoldNone_ = false;  // whether one of the slots up to the size was set to nothing
};

}  // namespace qzbase
