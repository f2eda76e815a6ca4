// Makes descriptors and vectors in one call.
//
//   auto entry = GCBase::NewEntryDesc(u"Temp", EVTDouble, u"Temperature", u"degC");
//   auto weights = GCBase::StrVector(u"(0.5;0.25)");
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/data/CVector.h"
#include "qzbase/desc/TCtrlDesc.h"
#include "qzbase/desc/TEntryDesc.h"
#include "qzbase/desc/TVarDesc.h"
#include "qzbase/runtime/Object.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase {

class GCBase : public runtime::Object {
 public:
  // ---- Factories: every result is a new object, which shares nothing with the arguments.

  static runtime::Ref<TVarDesc> NewVarDesc(std::u16string_view pID, QZVarType pVarType, std::u16string_view PName = u"",
                                           std::u16string_view pUnit = u"", std::u16string_view pOutFormat = u"");
  static runtime::Ref<TCtrlDesc> NewCtrlDesc(std::u16string_view pID, QZCtrlType pCtrlType);

  // Without a name, the entry is named by its identifier. A vector's entry has one dimension, the other has none.
  static runtime::Ref<TEntryDesc> NewEntryDesc(std::u16string_view pID, QZVarType pVarType,
                                               std::u16string_view PName = u"", std::u16string_view pUnit = u"",
                                               QZCtrlType pCtrlType = ECTEdit, std::u16string_view pFormat = u"",
                                               std::u16string_view pRange = u"", std::u16string_view pInterval = u"",
                                               bool pSaveMask = true, bool pUserDefined = false,
                                               bool pRemovable = false);
  static runtime::Ref<TEntryDesc> NewVectorDesc(std::u16string_view pID, QZVarType pVarType,
                                                std::u16string_view PName = u"", std::u16string_view pUnit = u"",
                                                QZCtrlType pCtrlType = ECTEdit, std::u16string_view pFormat = u"",
                                                std::u16string_view pRange = u"", std::u16string_view pInterval = u"",
                                                bool pSaveMask = true, bool pUserDefined = false,
                                                bool pRemovable = false);

  // An entry that the user made and may remove. The formula is kept in the description; there is no mask to save.
  static runtime::Ref<TEntryDesc> NewFormulaDesc(std::u16string_view pID, std::u16string_view PName, QZVarType pVarType,
                                                 std::u16string_view pFormula, std::u16string_view pUnit = u"",
                                                 std::u16string_view pFormat = u"");

  // Of copies; a part that is not given is a new one, with an empty identifier.
  static runtime::Ref<TEntryDesc> EntryDesc(const TVarDesc* VarDesc, const TCtrlDesc* CtrlDesc = nullptr);

  // One element each, but for `StrVector`, which takes a list of texts (CStrVector::SetFromString).
  static runtime::Ref<CVector> Vector(const runtime::Variant& Value);
  static runtime::Ref<CLngVector> LngVector(std::int32_t Value);
  static runtime::Ref<CDblVector> DblVector(double Value);
  static runtime::Ref<CStrVector> StrVector(std::u16string_view Value);
};

}  // namespace qzbase
