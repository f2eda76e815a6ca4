// Values to texts and texts to values, checked.
//
//   GCConvert::CheckValueED(text, *desc);                          raises what is wrong with the text for this entry
//   value = GCConvert::StringToValueVD(text, *desc->VarDesc());    the text is a value now
//   text = GCConvert::ValueToStringVD(value, *desc->VarDesc());    and is shown like this
//
// All go by the thread's locale. Texts of numbers that are not localised (`pLocalize`, `pLocalized`) have "." as
// decimal delimiter everywhere. "~" is the text of no value.
//
// What the members do and raise is said in ValueText.h (values to texts), ValueReader.h (texts to values), ValueCheck.h
// (checks), ValueTypeName.h (names of types) and NumberDelims.h (delimiters).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/core/QZVarType.h"
#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Object.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase {

class CDblVector;
class CVector;
class TEntryDesc;
class TVarDesc;

class GCConvert : public runtime::Object {
 public:
  static std::u16string BoolToString(bool pValue, std::u16string_view pFormat);
  static std::u16string DateToString(runtime::Date pValue, std::u16string_view pFormat = {});
  static std::u16string TimeToString(runtime::Date pValue, std::u16string_view pFormat = {});
  static std::u16string LongToString(std::int32_t pValue, std::u16string_view pFormat = {});
  static std::u16string DoubleToString(double pValue, std::u16string_view pFormat = {}, bool pLocalize = true);
  static std::u16string DoubleToStringSF(double pValue, std::int32_t pSigFigs);
  static std::u16string ColorToString(std::int32_t pValue);
  static std::u16string EnumToString(std::int32_t pValue, std::u16string_view pFormat);
  static std::u16string ValueToString(const runtime::Variant& pValue, QZVarType pVarType, std::u16string_view pFormat,
                                      bool pLocalize = true);
  // By the descriptor's type and output format.
  static std::u16string ValueToStringVD(const runtime::Variant& pValue, const TVarDesc& pVarDesc,
                                        bool pLocalize = true);

  static std::u16string VarTypeToString(QZVarType pVarType);
  static std::u16string WindowsTimeFormat();
  static std::u16string WindowsDateFormat();
  static std::u16string WindowsDecimalDelim();
  static std::u16string WindowsThousandDelim();
  static std::int32_t CheckNrOutFormat(std::u16string_view pFormat);
  static std::u16string StrInvalid() { return std::u16string(kInvalidString); }

  // See core/QZVarType.h.
  static runtime::Variant InvalidValue(QZVarType pVarType) { return InvalidValueOf(pVarType); }

  // See PlainNumber.h.
  static bool IsNumber(std::u16string_view pString);
  static bool TypeIsNumeric(QZVarType pVarType) { return pVarType == EVTDouble || pVarType == EVTLong; }

  static void CheckDouble(std::u16string_view pValue, bool pAllowInvalid = true, bool pLocalized = true);
  static double StringToDouble(std::u16string_view pValue, bool pLocalized = true);
  static void CheckLong(std::u16string_view pValue, bool pAllowInvalid = true);
  // The format plays no part.
  static std::int32_t StringToLong(std::u16string_view pValue, std::u16string_view pFormat = {});
  static bool StringToBool(std::u16string_view pValue, std::u16string_view pFormat = {});
  static std::int32_t StringToEnum(std::u16string_view pValue, std::u16string_view pFormat = {});
  static void CheckDate(std::u16string_view pValue, bool pAllowInvalid = true);
  static runtime::Date StringToDate(std::u16string_view pValue, std::u16string_view pFormat);
  static void CheckValue(std::u16string_view pValue, QZVarType pVarType, std::u16string_view pRange,
                         std::u16string_view pStep, std::u16string_view pFormat = {}, bool pLocalized = true,
                         bool pAllowInvalid = true);
  // By the descriptor's type, range, interval and output format.
  static void CheckValueED(std::u16string_view pValue, const TEntryDesc& pDesc, bool pLocalized = true,
                           bool pAllowInvalid = true);
  static runtime::Variant StringToValue(std::u16string_view pValue, QZVarType pVarType,
                                        std::u16string_view pFormat = {}, bool pLocalized = true);
  static runtime::Variant StringToValueVD(std::u16string_view pValue, const TVarDesc& pVarDesc, bool pLocalized = true);

  static QZVarType StringToVarType(std::u16string_view pValue);
  static QZVarType CnvQZVarType(std::u16string_view pString);
  static runtime::Variant IsBooleanRange(std::u16string_view pRange);  // a boolean
  static runtime::Variant IsEnumRange(std::u16string_view pRange);     // a boolean

  // New vectors of as many elements. What is no number (an empty element, text that says none, an object) becomes the
  // invalid double, as do the invalid long and day 0; the invalid double stays one. The vector of values is one of
  // doubles (its type is EVTDouble).
  static runtime::Ref<CDblVector> VectorToDblVector(const CVector& pVector);
  static runtime::Ref<CVector> DblVectorToVector(const CDblVector& pVector);
};

}  // namespace qzbase
