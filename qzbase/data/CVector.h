// A one-based, growable list of variants with a declared value type (ElementVector.h, BlockVector.h).
//
// The type neither converts nor checks the elements: it says in which record each of them is written and read. It is
// not part of the record; who loads must have set it before.
//
// Elements compare as variants do, texts exactly (`CompareExact`): error 13 for objects and arrays. `GetString` raises
// it too, and 94 for null. An insertion cuts the capacity to the number of elements.
//
// Record: that of ElementVector.h, each element in the record of the type, to which it converts:
//
//   EVTInvalid   what the value is, with its marker; reading it back raises InvVarType, or gives empty values where the
//                first is a date
//   EVTColor     written as a colour, read as a long: raises InvVarType
//   EVTEnum      a long
//   EVTObject    nothing, as for a number that is no type: any number of elements loads, and keeps what it holds
#pragma once

#include <cstdint>
#include <span>

#include "qzbase/core/QZVarType.h"
#include "qzbase/data/BlockVector.h"

namespace qzbase {

class CVector final : public BlockVector<ElementVector<CVector, VariantElement>> {
  using Base = ElementVector<CVector, VariantElement>;

 public:
  QZVarType VarType() const noexcept { return varType_; }
  void LetVarType(QZVarType pVarType) noexcept { varType_ = pVarType; }

  // Both include the type.
  void CopyFrom(const CVector& pSource);
  bool IsEqual(const CVector& pCompare) const;

  // For the library's own classes: the slots, of which the table that has this as a column says how many count
  // (BlockStorage.h).
  BlockStorage<runtime::Variant>& Slots() noexcept { return storage_; }

 private:
  void SaveElements(CBuffer& pBuffer) const override;
  void LoadElements(CBuffer& pBuffer) override;
  std::int32_t LeastBytes() const override;

  QZVarType varType_ = EVTInvalid;
};

extern template class ElementVector<CVector, VariantElement>;

}  // namespace qzbase
