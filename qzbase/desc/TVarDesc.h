// What a value is: identifier, type, name, unit, output format, dimensions.
//
// Setters store what they are given. A name is shown to users; while it is empty the identifier stands in for it. Names
// of entries that are not user-defined are supplied by localisation: they are neither compared nor saved.
//
// Record: tag "VD#2"; ID, name, unit, type (long), output format, is-formula, description, dimensions (byte), tag text,
// user-defined; tag "\VD". Version 1 has no user-defined flag.
//
// Loading raises InvVarType where the buffer holds another record; the fields read before it keep their new values.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/core/QZVarType.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class TVarDesc final : public runtime::Object {
 public:
  const std::u16string& ID() const noexcept { return id_; }
  void LetID(std::u16string_view pID) { id_ = pID; }
  QZVarType VarType() const noexcept { return varType_; }
  void LetVarType(QZVarType pVarType) noexcept { varType_ = pVarType; }
  const std::u16string& Name() const;
  void LetName(std::u16string_view pName) { name_ = pName; }
  const std::u16string& Unit() const noexcept { return unit_; }
  void LetUnit(std::u16string_view pUnit) { unit_ = pUnit; }
  const std::u16string& OutFormat() const noexcept { return outFormat_; }
  void LetOutFormat(std::u16string_view pOutFormat) { outFormat_ = pOutFormat; }
  const std::u16string& Description() const noexcept { return description_; }
  void LetDescription(std::u16string_view pDescription) { description_ = pDescription; }
  const std::u16string& Tag() const noexcept { return tag_; }
  void LetTag(std::u16string_view pTag) { tag_ = pTag; }
  bool IsFormula() const noexcept { return isFormula_; }
  void LetIsFormula(bool pIsFormula) noexcept { isFormula_ = pIsFormula; }
  // 0 for a scalar. Saved as one byte: saving raises error 6 outside 0 to 255.
  std::int32_t NrDims() const noexcept { return nrDims_; }
  void LetNrDims(std::int32_t pNrDims) noexcept { nrDims_ = pNrDims; }

  // "ID:...|Name:...|": every field for people, the name as it is stored.
  std::u16string GetString() const;

  // The copy of a descriptor without a name is named by its identifier.
  void CopyFrom(const TVarDesc& pSource);
  runtime::Ref<TVarDesc> GetCopy() const;
  // The name counts only where this descriptor is user-defined.
  bool IsEqual(const TVarDesc& pCompare) const;

  // Empties the name of a descriptor that is not user-defined.
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false);
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

  // Whether the entry was made by the user: for the library's own classes, hosts reach it through TEntryDesc.
  bool UserDefined() const noexcept { return userDefined_; }
  void LetUserDefined(bool pUserDefined) noexcept { userDefined_ = pUserDefined; }

 private:
  struct FieldLists;

  std::u16string id_;
  std::u16string name_;
  std::u16string unit_;
  std::u16string outFormat_;
  std::u16string description_;
  std::u16string tag_;
  QZVarType varType_ = EVTString;
  std::int32_t nrDims_ = 0;
  bool isFormula_ = false;
  bool userDefined_ = false;
};

}  // namespace qzbase
