// A one-based, growable list of objects with keys.
//
// The objects may be of any class, of this library or a host's own, that offers `GetCopy`, `SaveToBuffer` and
// `LoadFromBuffer`: they are called by name (error 438 where one is missing, 91 for a slot without an object, 13 where
// `GetCopy` gives no object).
//
//   CObjVector list;
//   list.AddObject(u"first", vector.get());    // a copy
//   list.LetSize(2);
//   list.LetRef(2, vector);                    // the object itself
//   list.GetUniqueKey(u"First");               // "First1"
//
// Keys compare by text comparison, ignoring case; several slots may have the same one. `Size` counts the objects; slots
// come in blocks and are checked against the storage alone (BlockStorage.h). New slots hold no object and the key "".
//
// Record: tag "VO#1", the size as a long, for each slot its key as a string and the object's own record, tag "\VO".
// Loading needs the objects to be there, of the classes that were saved: each text is assigned to the default member of
// the object in its slot, not to the key, and then the object loads itself. Objects of this library have no default
// member: loading raises 438 for them.
//
// Raises 28 (out of stack space) where lists hold one another more than 100 deep, or one holds itself. What was reached
// before an error stays.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/data/BlockStorage.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class CObjVector final : public runtime::Object {
 public:
  std::int32_t Size() const noexcept { return storage_.Size(); }
  void LetSize(std::int32_t pSize) { storage_.LetSize(pSize); }

  // The stored object itself, or none.
  runtime::Ref<runtime::Object> Ref(std::int32_t pIndex) const { return storage_.Slot(pIndex).object; }
  void LetRef(std::int32_t pIndex, runtime::Ref<runtime::Object> pObject);

  // What the stored object's `GetCopy` gives.
  runtime::Ref<runtime::Object> Copy(std::int32_t pIndex) const;

  const std::u16string& Key(std::int32_t pIndex) const { return storage_.Slot(pIndex).key; }
  void LetKey(std::int32_t pIndex, std::u16string_view pKey);

  // Both store the key, and then a copy of the object, which must be set.
  void ReplaceObject(std::int32_t pIndex, std::u16string_view pKey, runtime::Object* pValue);
  void AddObject(std::u16string_view pKey, runtime::Object* pValue);

  // The index is not checked against the size: one past it drops the last object.
  void DeleteObject(std::int32_t pIndex) { storage_.Delete(pIndex); }

  // The key itself, or with the first number from 1 on behind it that makes it one that no slot has.
  std::u16string GetUniqueKey(std::u16string_view pKey) const;

  // The first slot with the key, -1 when there is none.
  std::int32_t Index(std::u16string_view pKey) const;

  // All keys, in order.
  runtime::Ref<CStrVector> KeyVec() const;

  // Copies of the objects, by `Copy`; the block size stays.
  void CopyFrom(const CObjVector& pSource);
  runtime::Ref<CObjVector> GetCopy() const;

  // Without a buffer both do nothing. Where a host's objects are called, the buffer must have been made by `New`.
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false) const;
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

  void LetBlockSize(std::int32_t pBlockSize) { storage_.LetBlockSize(pBlockSize); }

 private:
  struct KeyedObject {
    std::u16string key;
    runtime::Ref<runtime::Object> object;
  };

  BlockStorage<KeyedObject> storage_{kDefaultBlockSize};
};

}  // namespace qzbase
