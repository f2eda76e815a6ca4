// The whole catalog as text, one line each: what a change of it is seen by.
//
//   library QZBase 1.0 {...}
//   enum BorderType {...}
//   BorderType.BorderNone = 1
//   record TErrIndex {...}
//   TErrIndex.Value: Long
//   class CDblVector {...} interface {...}
//   CDblVector 2 get Size(): Long
//   CDblVector 2 let Size(pNewValue: Long)
//   CDblVector 8 method InsertValue(pAtPos: Long, pValue: Double = -9.9999999999E+300)
//
// Members are in slot order, with their ids. A parameter that may be left out without a value has "= ?"; one that is
// passed by reference has "ByRef", and "In ByRef" where the member does not change it.
#pragma once

#include <string>

#include "qzbase/automation/Catalog.h"

namespace qzbase::automation {

// In UTF-8. The texts of numbers do not depend on the locale.
std::string TypeText(const TypeDesc& pType);
std::string MemberText(const ClassDesc& pClass, const MemberDesc& pMember);
std::string CatalogText(const Catalog& pCatalog);

}  // namespace qzbase::automation
