#include "qzbase/text/GCConvert.h"

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CVector.h"
#include "qzbase/desc/TEntryDesc.h"
#include "qzbase/desc/TVarDesc.h"
#include "qzbase/runtime/Attempt.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/Positions.h"
#include "qzbase/text/NumberDelims.h"
#include "qzbase/text/PlainNumber.h"
#include "qzbase/text/ValueCheck.h"
#include "qzbase/text/ValueReader.h"
#include "qzbase/text/ValueText.h"
#include "qzbase/text/ValueTypeName.h"

namespace qzbase {
namespace {

using runtime::Date;
using runtime::Ref;
using runtime::Variant;

// The number of an element, the invalid double where it has none.
double NumberOf(const Variant& pElement, const runtime::LocaleRules& pRules) {
  if (const auto* number = pElement.If<double>()) return *number;
  if (const auto* number = pElement.If<std::int32_t>()) return *number == kInvalidLong ? kInvalidDouble : *number;
  if (const auto* date = pElement.If<Date>()) return *date == kInvalidDate ? kInvalidDouble : date->days;
  if (const auto* text = pElement.If<std::u16string>()) return ModConvert::StringToDouble(*text, true, pRules);
  if (pElement.IsEmpty()) return kInvalidDouble;
  return runtime::Attempt([&] { return runtime::ToDouble(pElement, pRules); }).value_or(kInvalidDouble);
}

}  // namespace

std::u16string GCConvert::BoolToString(bool pValue, std::u16string_view pFormat) {
  return ModConvert::BoolToString(pValue, pFormat);
}

std::u16string GCConvert::DateToString(Date pValue, std::u16string_view pFormat) {
  return ModConvert::DateToString(pValue, pFormat);
}

std::u16string GCConvert::TimeToString(Date pValue, std::u16string_view pFormat) {
  return ModConvert::TimeToString(pValue, pFormat);
}

std::u16string GCConvert::LongToString(std::int32_t pValue, std::u16string_view pFormat) {
  return ModConvert::LongToString(pValue, pFormat);
}

std::u16string GCConvert::DoubleToString(double pValue, std::u16string_view pFormat, bool pLocalize) {
  return ModConvert::DoubleToString(pValue, pFormat, pLocalize);
}

std::u16string GCConvert::DoubleToStringSF(double pValue, std::int32_t pSigFigs) {
  return ModConvert::DoubleToStringSF(pValue, pSigFigs);
}

std::u16string GCConvert::ColorToString(std::int32_t pValue) {
  return ModConvert::ColorToString(pValue);
}

std::u16string GCConvert::EnumToString(std::int32_t pValue, std::u16string_view pFormat) {
  return ModConvert::EnumToString(pValue, pFormat);
}

std::u16string GCConvert::ValueToString(const Variant& pValue, QZVarType pVarType, std::u16string_view pFormat,
                                        bool pLocalize) {
  return ModConvert::ValueToString(pValue, pVarType, pFormat, pLocalize);
}

std::u16string GCConvert::ValueToStringVD(const Variant& pValue, const TVarDesc& pVarDesc, bool pLocalize) {
  return ModConvert::ValueToString(pValue, pVarDesc.VarType(), pVarDesc.OutFormat(), pLocalize);
}

std::u16string GCConvert::VarTypeToString(QZVarType pVarType) {
  return ModConvert::VarTypeToString(pVarType);
}

std::u16string GCConvert::WindowsTimeFormat() {
  return ModConvert::WindowsTimeFormat();
}

std::u16string GCConvert::WindowsDateFormat() {
  return ModConvert::WindowsDateFormat();
}

std::u16string GCConvert::WindowsDecimalDelim() {
  return std::u16string(ModConvert::WindowsDecimalDelim());
}

std::u16string GCConvert::WindowsThousandDelim() {
  return std::u16string(ModConvert::WindowsThousandDelim());
}

std::int32_t GCConvert::CheckNrOutFormat(std::u16string_view pFormat) {
  return ModConvert::CheckNrOutFormat(pFormat);
}

bool GCConvert::IsNumber(std::u16string_view pString) {
  return ModConvert::IsPlainNumber(pString);
}

void GCConvert::CheckDouble(std::u16string_view pValue, bool pAllowInvalid, bool pLocalized) {
  ModConvert::CheckDouble(pValue, pAllowInvalid, pLocalized);
}

double GCConvert::StringToDouble(std::u16string_view pValue, bool pLocalized) {
  return ModConvert::StringToDouble(pValue, pLocalized);
}

void GCConvert::CheckLong(std::u16string_view pValue, bool pAllowInvalid) {
  ModConvert::CheckLong(pValue, pAllowInvalid);
}

std::int32_t GCConvert::StringToLong(std::u16string_view pValue, std::u16string_view) {
  return ModConvert::StringToLong(pValue);
}

bool GCConvert::StringToBool(std::u16string_view pValue, std::u16string_view pFormat) {
  return ModConvert::StringToBool(pValue, pFormat);
}

std::int32_t GCConvert::StringToEnum(std::u16string_view pValue, std::u16string_view pFormat) {
  return ModConvert::StringToEnum(pValue, pFormat);
}

void GCConvert::CheckDate(std::u16string_view pValue, bool pAllowInvalid) {
  ModConvert::CheckDate(pValue, pAllowInvalid);
}

Date GCConvert::StringToDate(std::u16string_view pValue, std::u16string_view pFormat) {
  return ModConvert::StringToDate(pValue, pFormat);
}

void GCConvert::CheckValue(std::u16string_view pValue, QZVarType pVarType, std::u16string_view pRange,
                           std::u16string_view pStep, std::u16string_view pFormat, bool pLocalized,
                           bool pAllowInvalid) {
  ModConvert::CheckValue(pValue, pVarType, pRange, pStep, pFormat, pLocalized, pAllowInvalid);
}

void GCConvert::CheckValueED(std::u16string_view pValue, const TEntryDesc& pDesc, bool pLocalized, bool pAllowInvalid) {
  ModConvert::CheckValue(pValue, pDesc.VarType(), pDesc.Range(), pDesc.Interval(), pDesc.OutFormat(), pLocalized,
                         pAllowInvalid);
}

Variant GCConvert::StringToValue(std::u16string_view pValue, QZVarType pVarType, std::u16string_view pFormat,
                                 bool pLocalized) {
  return ModConvert::StringToValue(pValue, pVarType, pFormat, pLocalized);
}

Variant GCConvert::StringToValueVD(std::u16string_view pValue, const TVarDesc& pVarDesc, bool pLocalized) {
  return ModConvert::StringToValue(pValue, pVarDesc.VarType(), pVarDesc.OutFormat(), pLocalized);
}

QZVarType GCConvert::StringToVarType(std::u16string_view pValue) {
  return ModConvert::StringToVarType(pValue);
}

QZVarType GCConvert::CnvQZVarType(std::u16string_view pString) {
  return ModConvert::CnvQZVarType(pString);
}

Variant GCConvert::IsBooleanRange(std::u16string_view pRange) {
  return ModConvert::IsBooleanRange(pRange);
}

Variant GCConvert::IsEnumRange(std::u16string_view pRange) {
  return ModConvert::IsEnumRange(pRange);
}

Ref<CDblVector> GCConvert::VectorToDblVector(const CVector& pVector) {
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  Ref<CDblVector> result = runtime::New<CDblVector>();
  result->LetSize(pVector.Size());
  for (const std::int32_t i : runtime::Positions(1, pVector.Size()))
    result->LetValue(i, NumberOf(pVector.Value(i), rules));
  return result;
}

Ref<CVector> GCConvert::DblVectorToVector(const CDblVector& pVector) {
  Ref<CVector> result = runtime::New<CVector>();
  result->LetVarType(EVTDouble);
  result->LetSize(pVector.Size());
  for (const std::int32_t i : runtime::Positions(1, pVector.Size())) result->LetValue(i, pVector.Value(i));
  return result;
}

}  // namespace qzbase
