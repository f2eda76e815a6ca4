// A one-based, growable list of variants with a declared value type.
//
// The type neither converts nor checks the elements: it says in which record each of them is written and read. It is
// not part of the record; who loads must have set it before.
//
// Slots come in blocks (BlockStorage.h), but an insertion cuts the capacity to the number of elements.
//
// Record: tag "VE#1", the size as a long, each element in the record of the type, tag "\VE".
//
//   EVTInvalid           what the value is, with its marker; reading it back raises InvVarType
//   EVTColor             written as a colour, read as a long: raises InvVarType
//   EVTEnum              a long
//   EVTObject            nothing
#pragma once

#include <cstdint>
#include <string>

#include "qzbase/core/QZVarType.h"
#include "qzbase/data/BlockStorage.h"
#include "qzbase/data/VectorElements.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class CVector final : public runtime::Object {
 public:
  QZVarType VarType() const noexcept { return varType_; }
  void LetVarType(QZVarType pVarType) noexcept { varType_ = pVarType; }

  std::int32_t Size() const noexcept { return storage_.Size(); }
  void LetSize(std::int32_t pSize) { storage_.LetSize(pSize); }

  // "(1;text;)", each element in its default text.
  std::u16string GetString() const;

  const runtime::Variant& Value(std::int32_t pIndex) const { return storage_.Slot(pIndex); }
  void LetValue(std::int32_t pIndex, runtime::Variant pValue) { storage_.Store(pIndex, std::move(pValue)); }

  // A position below 1 or past the end appends.
  void InsertValue(std::int32_t pAtPos, runtime::Variant pValue = kInvalidDouble);
  void AddValue(runtime::Variant pValue) { InsertValue(0, std::move(pValue)); }
  void AddUniqueValue(const runtime::Variant& pValue);
  void DeleteValue(std::int32_t pIndex) { storage_.Delete(pIndex); }

  // The first element from `pStartIndex` on that equals the value (runtime/Compare.h), -1 when there is none.
  std::int32_t Index(const runtime::Variant& pValue, std::int32_t pStartIndex = 1) const;

  void Sort(bool pAscending = true);

  void CopyFrom(const CVector& pSource);
  runtime::Ref<CVector> GetCopy() const;
  bool IsEqual(const CVector& pCompare) const;
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false) const;
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

  void LetBlockSize(std::int32_t pBlockSize) { storage_.LetBlockSize(pBlockSize); }

  // The elements, side by side; for the library's own classes.
  std::span<runtime::Variant> Elements() { return storage_.Elements(); }

 private:
  BlockStorage<runtime::Variant> storage_{kDefaultBlockSize};
  QZVarType varType_ = EVTInvalid;
};

}  // namespace qzbase
