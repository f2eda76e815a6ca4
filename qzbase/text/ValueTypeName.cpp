#include "qzbase/text/ValueTypeName.h"

#include "qzbase/core/LocalizedText.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::ModConvert {
namespace {

constexpr QZVarType kNamedTypes[] = {EVTBoolean, EVTDouble, EVTLong, EVTString, EVTDate, EVTColor, EVTEnum};

}  // namespace

std::u16string VarTypeToString(QZVarType pVarType) {
  const std::u16string_view name = NameOf(pVarType);
  return name.empty() ? std::u16string() : LocalizedText(name, name);
}

QZVarType StringToVarType(std::u16string_view pValue, const runtime::LocaleRules& pRules) {
  for (const QZVarType type : kNamedTypes)
    if (runtime::EqualText(VarTypeToString(type), pValue, pRules)) return type;
  return EVTInvalid;
}

QZVarType CnvQZVarType(std::u16string_view pString) {
  for (const QZVarType type : {EVTString, EVTDouble, EVTDate, EVTBoolean, EVTEnum})
    if (runtime::EqualName(NameOf(type), pString)) return type;
  return EVTInvalid;
}

}  // namespace qzbase::ModConvert
