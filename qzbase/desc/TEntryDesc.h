// One entry of an application's data: a TVarDesc (what the value is) and a TCtrlDesc (how its control behaves) behind
// one flat set of properties, which are stored in those two alone.
//
// `SetVarDesc` and `SetCtrlDesc` share the object that they are given. They may be given none: every member that needs
// the part then raises error 91.
//
// Record: tag "ED#1", the two parts, tag "\ED".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "qzbase/desc/TCtrlDesc.h"
#include "qzbase/desc/TVarDesc.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class TEntryDesc final : public runtime::Object {
 public:
  const std::u16string& ID() const { return Var().ID(); }
  void LetID(std::u16string_view pID);  // of both parts
  QZVarType VarType() const { return Var().VarType(); }
  void LetVarType(QZVarType pVarType) { Var().LetVarType(pVarType); }
  const std::u16string& Name() const { return Var().Name(); }
  void LetName(std::u16string_view pName) { Var().LetName(pName); }
  const std::u16string& Unit() const { return Var().Unit(); }
  void LetUnit(std::u16string_view pUnit) { Var().LetUnit(pUnit); }
  const std::u16string& Description() const { return Var().Description(); }
  void LetDescription(std::u16string_view pDescription) { Var().LetDescription(pDescription); }
  const std::u16string& Tag() const { return Var().Tag(); }
  void LetTag(std::u16string_view pTag) { Var().LetTag(pTag); }
  const std::u16string& OutFormat() const { return Var().OutFormat(); }
  void LetOutFormat(std::u16string_view pOutFormat) { Var().LetOutFormat(pOutFormat); }
  bool IsFormula() const { return Var().IsFormula(); }
  void LetIsFormula(bool pIsFormula) { Var().LetIsFormula(pIsFormula); }
  std::int32_t NrDims() const { return Var().NrDims(); }
  void LetNrDims(std::int32_t pNrDims) { Var().LetNrDims(pNrDims); }
  QZCtrlType CtrlType() const { return Ctrl().CtrlType(); }
  void LetCtrlType(QZCtrlType pCtrlType) { Ctrl().LetCtrlType(pCtrlType); }
  const std::u16string& Range() const { return Ctrl().Range(); }
  void LetRange(std::u16string_view pRange) { Ctrl().LetRange(pRange); }
  const std::u16string& Interval() const { return Ctrl().Interval(); }
  void LetInterval(std::u16string_view pInterval) { Ctrl().LetInterval(pInterval); }
  std::int32_t Width() const { return Ctrl().Width(); }
  void LetWidth(std::int32_t pWidth) { Ctrl().LetWidth(pWidth); }
  bool Removable() const { return Ctrl().Removable(); }
  void LetRemovable(bool pRemovable) { Ctrl().LetRemovable(pRemovable); }
  bool Visible() const { return Ctrl().Visible(); }
  void LetVisible(bool pVisible) { Ctrl().LetVisible(pVisible); }
  bool SaveMask() const { return Ctrl().SaveMask(); }
  void LetSaveMask(bool pSaveMask) { Ctrl().LetSaveMask(pSaveMask); }
  // The variable part's flag; the control part has one of its own.
  bool UserDefined() const { return Var().UserDefined(); }
  void LetUserDefined(bool pUserDefined) { Var().LetUserDefined(pUserDefined); }
  bool Locked() const { return Ctrl().Locked(); }
  void LetLocked(bool pLocked) { Ctrl().LetLocked(pLocked); }

  const runtime::Ref<TCtrlDesc>& CtrlDesc() const noexcept { return ctrlDesc_; }
  void SetCtrlDesc(runtime::Ref<TCtrlDesc> pCtrlDesc) noexcept { ctrlDesc_ = std::move(pCtrlDesc); }
  const runtime::Ref<TVarDesc>& VarDesc() const noexcept { return varDesc_; }
  void SetVarDesc(runtime::Ref<TVarDesc> pVarDesc) noexcept { varDesc_ = std::move(pVarDesc); }

  // The control part's text, then the variable part's.
  std::u16string GetString() const;

  void CopyFrom(const TEntryDesc& pSource);
  runtime::Ref<TEntryDesc> GetCopy() const;
  bool IsEqual(const TEntryDesc& pCompare) const;
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false);
  // A control record of version 1 that says user-defined marks the variable part so and empties its name.
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 private:
  TVarDesc& Var() const;  // error 91 where it was set to nothing
  TCtrlDesc& Ctrl() const;

  runtime::Ref<TVarDesc> varDesc_ = runtime::New<TVarDesc>();
  runtime::Ref<TCtrlDesc> ctrlDesc_ = runtime::New<TCtrlDesc>();
};

}  // namespace qzbase
