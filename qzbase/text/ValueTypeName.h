// The names of the value types, as users see them and as files and programs spell them.
#pragma once

#include <string>
#include <string_view>

#include "qzbase/core/QZVarType.h"
#include "qzbase/runtime/Locale.h"

namespace qzbase::ModConvert {

// "Number", "Integer", "Text", ..., translated; "" for a type without a name.
std::u16string VarTypeToString(QZVarType pVarType);

// The type of that translated name, ignoring case; EVTInvalid when there is none.
QZVarType StringToVarType(std::u16string_view pValue, const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// The type of one of the English names "Text", "Number", "Date", "Boolean" and "Enum", ignoring case; EVTInvalid for
// every other text, "Integer" and "Color" as well: callers rely on it.
QZVarType CnvQZVarType(std::u16string_view pString);

}  // namespace qzbase::ModConvert
