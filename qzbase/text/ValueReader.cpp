#include "qzbase/text/ValueReader.h"

#include "qzbase/runtime/DateReader.h"
#include "qzbase/runtime/NumberReader.h"
#include "qzbase/runtime/TextCompare.h"
#include "qzbase/text/DateByFormat.h"
#include "qzbase/text/EnumRange.h"
#include "qzbase/text/NumberDelims.h"

namespace qzbase::ModConvert {

using runtime::Date;
using runtime::LocaleRules;
using runtime::Variant;

double StringToDouble(std::u16string_view pValue, bool pLocalized, const LocaleRules& pRules) {
  ShortText room;
  double value = kInvalidDouble;
  runtime::ReadNumber(LocalizedNumber(pValue, pLocalized, room, pRules), value, pRules);
  return value;
}

std::int32_t StringToLong(std::u16string_view pValue, const LocaleRules& pRules) {
  std::int32_t value = kInvalidLong;
  runtime::ReadNumber(pValue, value, pRules);
  return value;
}

bool StringToBool(std::u16string_view pValue, std::u16string_view pFormat, const LocaleRules& pRules) {
  const std::u16string_view list = pFormat.empty() ? kDefaultBooleans : pFormat;
  return list.starts_with(u'{') && runtime::EqualText(pValue, list.substr(1, list.find(u';') - 1), pRules);
}

std::int32_t StringToEnum(std::u16string_view pValue, std::u16string_view pFormat) {
  return ModString::EnumOrd(pValue, pFormat);
}

Date StringToDate(std::u16string_view pValue, std::u16string_view pFormat, const LocaleRules& pRules) {
  Date date = kInvalidDate;
  if (pFormat.empty())
    runtime::ReadDate(pValue, date, pRules);
  else
    ReadDateByFormat(pValue, pFormat, date, pRules);
  return date;
}

Variant StringToValue(std::u16string_view pValue, QZVarType pVarType, std::u16string_view pFormat, bool pLocalized,
                      const LocaleRules& pRules) {
  switch (pVarType) {
    case EVTBoolean:
      return StringToBool(pValue, pFormat, pRules);
    case EVTDouble:
      return StringToDouble(pValue, pLocalized, pRules);
    case EVTLong:
      return StringToLong(pValue, pRules);
    case EVTString:
      return pValue;
    case EVTDate:
      return StringToDate(pValue, pFormat, pRules);
    case EVTEnum:
      return StringToEnum(pValue, pFormat);
    case EVTColor:
    case EVTInvalid:
    case EVTObject:
      break;
  }
  return {};
}

}  // namespace qzbase::ModConvert
