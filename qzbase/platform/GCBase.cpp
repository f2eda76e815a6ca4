#include "qzbase/platform/GCBase.h"

#include "qzbase/runtime/TextCompare.h"

namespace qzbase {
namespace {

template <class Vector, class Value>
runtime::Ref<Vector> WithOneElement(const Value& pValue) {
  auto vector = runtime::New<Vector>();
  vector->LetSize(1);
  vector->LetValue(1, pValue);
  return vector;
}

}  // namespace

runtime::Ref<TVarDesc> GCBase::NewVarDesc(std::u16string_view pID, QZVarType pVarType, std::u16string_view PName,
                                          std::u16string_view pUnit, std::u16string_view pOutFormat) {
  auto desc = runtime::New<TVarDesc>();
  desc->LetID(pID);
  desc->LetVarType(pVarType);
  desc->LetName(PName);
  desc->LetUnit(pUnit);
  desc->LetOutFormat(pOutFormat);
  return desc;
}

runtime::Ref<TCtrlDesc> GCBase::NewCtrlDesc(std::u16string_view pID, QZCtrlType pCtrlType) {
  auto desc = runtime::New<TCtrlDesc>();
  desc->LetID(pID);
  desc->LetCtrlType(pCtrlType);
  return desc;
}

runtime::Ref<TEntryDesc> GCBase::NewEntryDesc(std::u16string_view pID, QZVarType pVarType, std::u16string_view PName,
                                              std::u16string_view pUnit, QZCtrlType pCtrlType,
                                              std::u16string_view pFormat, std::u16string_view pRange,
                                              std::u16string_view pInterval, bool pSaveMask, bool pUserDefined,
                                              bool pRemovable) {
  auto entry = runtime::New<TEntryDesc>();
  entry->LetID(pID);
  entry->LetCtrlType(pCtrlType);
  entry->LetVarType(pVarType);
  entry->LetName(runtime::EqualText(PName, u"") ? pID : PName);
  entry->LetUnit(pUnit);
  entry->LetOutFormat(pFormat);
  entry->LetRange(pRange);
  entry->LetInterval(pInterval);
  entry->LetSaveMask(pSaveMask);
  entry->LetRemovable(pRemovable);
  entry->LetUserDefined(pUserDefined);
  return entry;
}

runtime::Ref<TEntryDesc> GCBase::NewVectorDesc(std::u16string_view pID, QZVarType pVarType, std::u16string_view PName,
                                               std::u16string_view pUnit, QZCtrlType pCtrlType,
                                               std::u16string_view pFormat, std::u16string_view pRange,
                                               std::u16string_view pInterval, bool pSaveMask, bool pUserDefined,
                                               bool pRemovable) {
  auto entry = NewEntryDesc(pID, pVarType, PName, pUnit, pCtrlType, pFormat, pRange, pInterval, pSaveMask, pUserDefined,
                            pRemovable);
  entry->LetNrDims(1);
  return entry;
}

runtime::Ref<TEntryDesc> GCBase::NewFormulaDesc(std::u16string_view pID, std::u16string_view PName, QZVarType pVarType,
                                                std::u16string_view pFormula, std::u16string_view pUnit,
                                                std::u16string_view pFormat) {
  auto entry = runtime::New<TEntryDesc>();
  entry->LetID(pID);
  entry->LetVarType(pVarType);
  entry->LetName(PName);
  entry->LetUnit(pUnit);
  entry->LetOutFormat(pFormat);
  entry->LetIsFormula(true);
  entry->LetDescription(pFormula);
  entry->LetRemovable(true);
  entry->LetUserDefined(true);
  entry->LetSaveMask(false);
  return entry;
}

runtime::Ref<TEntryDesc> GCBase::EntryDesc(const TVarDesc* VarDesc, const TCtrlDesc* CtrlDesc) {
  auto entry = runtime::New<TEntryDesc>();
  if (VarDesc) entry->VarDesc()->CopyFrom(*VarDesc);
  if (CtrlDesc) entry->CtrlDesc()->CopyFrom(*CtrlDesc);
  return entry;
}

runtime::Ref<CVector> GCBase::Vector(const runtime::Variant& Value) {
  return WithOneElement<CVector>(Value);
}

runtime::Ref<CLngVector> GCBase::LngVector(std::int32_t Value) {
  return WithOneElement<CLngVector>(Value);
}

runtime::Ref<CDblVector> GCBase::DblVector(double Value) {
  return WithOneElement<CDblVector>(Value);
}

runtime::Ref<CStrVector> GCBase::StrVector(std::u16string_view Value) {
  auto vector = runtime::New<CStrVector>();
  vector->SetFromString(Value);
  return vector;
}

}  // namespace qzbase
