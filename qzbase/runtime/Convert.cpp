#include "qzbase/runtime/Convert.h"

#include <cmath>
#include <concepts>
#include <limits>

#include "qzbase/runtime/DateReader.h"
#include "qzbase/runtime/DateText.h"
#include "qzbase/runtime/NumberReader.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::runtime {
namespace {

// The value that a recogniser has read, or the error that its result stands for.
template <class T>
T Checked(ReadResult pResult, T pValue) {
  switch (pResult) {
    case ReadResult::Read:
      return pValue;
    case ReadResult::NotANumber:
      Raise(RuntimeError::TypeMismatch);
    case ReadResult::Overflow:
      Raise(RuntimeError::Overflow);
  }
  Raise(RuntimeError::InternalError);
}

template <class T>
T TextToNumber(std::u16string_view pText, const LocaleRules& pRules) {
  T value{};
  const ReadResult result = ReadNumber(pText, value, pRules);
  return Checked(result, value);
}

template <std::integral T>
T RoundTo(double pValue) {
  const double rounded = std::nearbyint(pValue);  // half to even
  if (!(rounded >= std::numeric_limits<T>::min() && rounded <= std::numeric_limits<T>::max()))
    Raise(RuntimeError::Overflow);
  return static_cast<T>(rounded);
}

template <std::integral T>
T Narrow(std::int32_t pValue) {
  if (pValue < std::numeric_limits<T>::min() || pValue > std::numeric_limits<T>::max()) Raise(RuntimeError::Overflow);
  return static_cast<T>(pValue);
}

float NarrowToSingle(double pValue) {
  if (std::isfinite(pValue) && std::fabs(pValue) > std::numeric_limits<float>::max()) Raise(RuntimeError::Overflow);
  return static_cast<float>(pValue);
}

Date CheckedDate(double pDays) {
  if (!(pDays > kFirstDate - 1 && pDays < kLastDate)) Raise(RuntimeError::Overflow);
  return Date{pDays};
}

constexpr std::int32_t BooleanNumber(bool pValue) {
  return pValue ? -1 : 0;
}

// What is common to all conversions: nothing comes of null, of objects and of arrays, and empty is the zero value.
template <class Target>
struct Conversion {
  const LocaleRules& rules;

  Target operator()(std::monostate) const { return {}; }
  [[noreturn]] Target operator()(Null) const { Raise(RuntimeError::InvalidUseOfNull); }
  [[noreturn]] Target operator()(const Ref<Object>& pObject) const {
    Raise(pObject ? RuntimeError::TypeMismatch : RuntimeError::ObjectNotSet);
  }
  [[noreturn]] Target operator()(const ArrayBox&) const { Raise(RuntimeError::TypeMismatch); }
};

struct DoubleConversion : Conversion<double> {
  using Conversion::operator();
  double operator()(const std::u16string& pText) const { return TextToDouble(pText, rules); }
  double operator()(Date pDate) const { return pDate.days; }
  double operator()(bool pValue) const { return BooleanNumber(pValue); }
  template <class Number>
  requires std::is_arithmetic_v<Number>
  double operator()(Number pValue) const { return static_cast<double>(pValue); }
};

template <std::integral T>
struct IntegerConversion : Conversion<T> {
  using Conversion<T>::operator();
  T operator()(const std::u16string& pText) const { return Narrow<T>(TextToLong(pText, this->rules)); }
  T operator()(Date pDate) const { return RoundTo<T>(pDate.days); }
  T operator()(bool pValue) const { return static_cast<T>(BooleanNumber(pValue)); }
  T operator()(std::int16_t pValue) const { return Narrow<T>(pValue); }
  T operator()(std::int32_t pValue) const { return Narrow<T>(pValue); }
  T operator()(double pValue) const { return RoundTo<T>(pValue); }
};

struct BooleanConversion : Conversion<bool> {
  using Conversion::operator();
  bool operator()(const std::u16string& pText) const { return TextToBoolean(pText, rules); }
  bool operator()(Date pDate) const { return pDate.days != 0; }
  bool operator()(bool pValue) const { return pValue; }
  template <class Number>
  requires std::is_arithmetic_v<Number>
  bool operator()(Number pValue) const { return pValue != 0; }
};

struct DateConversion : Conversion<Date> {
  using Conversion::operator();
  Date operator()(const std::u16string& pText) const { return TextToDate(pText, rules); }
  Date operator()(Date pDate) const { return pDate; }
  Date operator()(bool pValue) const { return {static_cast<double>(BooleanNumber(pValue))}; }
  Date operator()(std::int16_t pValue) const { return {static_cast<double>(pValue)}; }
  Date operator()(std::int32_t pValue) const { return CheckedDate(pValue); }
  Date operator()(double pValue) const { return CheckedDate(pValue); }
  // Singles pass unchecked, as the runtime has always let them; using such a date as one raises error 5.
  Date operator()(float pValue) const { return {static_cast<double>(pValue)}; }
};

struct TextConversion : Conversion<std::u16string> {
  using Conversion::operator();
  std::u16string operator()(const std::u16string& pText) const { return pText; }
  std::u16string operator()(Date pDate) const { return DateText(pDate, rules); }
  std::u16string operator()(bool pValue) const { return std::u16string(BooleanText(pValue)); }
  std::u16string operator()(std::int16_t pValue) const { return NumberText(std::int32_t{pValue}); }
  std::u16string operator()(std::int32_t pValue) const { return NumberText(pValue); }
  std::u16string operator()(float pValue) const { return NumberText(pValue, rules); }
  std::u16string operator()(double pValue) const { return NumberText(pValue, rules); }
};

}  // namespace

double ToDouble(const Variant& pValue, const LocaleRules& pRules) {
  return pValue.Visit(DoubleConversion{{pRules}});
}

float ToSingle(const Variant& pValue, const LocaleRules& pRules) {
  if (const auto* single = pValue.If<float>()) return *single;
  return NarrowToSingle(ToDouble(pValue, pRules));
}

std::int32_t ToLong(const Variant& pValue, const LocaleRules& pRules) {
  return pValue.Visit(IntegerConversion<std::int32_t>{{pRules}});
}

std::int16_t ToInteger(const Variant& pValue, const LocaleRules& pRules) {
  return pValue.Visit(IntegerConversion<std::int16_t>{{pRules}});
}

std::uint8_t ToByte(const Variant& pValue, const LocaleRules& pRules) {
  return pValue.Visit(IntegerConversion<std::uint8_t>{{pRules}});
}

bool ToBoolean(const Variant& pValue, const LocaleRules& pRules) {
  return pValue.Visit(BooleanConversion{{pRules}});
}

Date ToDate(const Variant& pValue, const LocaleRules& pRules) {
  return pValue.Visit(DateConversion{{pRules}});
}

std::u16string ToText(const Variant& pValue, const LocaleRules& pRules) {
  return pValue.Visit(TextConversion{{pRules}});
}

double TextToDouble(std::u16string_view pText, const LocaleRules& pRules) {
  return TextToNumber<double>(pText, pRules);
}

std::int32_t TextToLong(std::u16string_view pText, const LocaleRules& pRules) {
  return TextToNumber<std::int32_t>(pText, pRules);
}

bool TextToBoolean(std::u16string_view pText, const LocaleRules& pRules) {
  bool value = false;
  const ReadResult result = ReadBoolean(pText, value, pRules);
  return Checked(result, value);
}

ReadResult ReadBoolean(std::u16string_view pText, bool& pValue, const LocaleRules& pRules) {
  const bool isTrue = EqualName(pText, BooleanText(true)) || pText == u"#TRUE#";
  if (isTrue || EqualName(pText, BooleanText(false)) || pText == u"#FALSE#") {
    pValue = isTrue;
    return ReadResult::Read;
  }
  double number = 0;
  const ReadResult result = ReadNumber(pText, number, pRules);
  if (result == ReadResult::Read) pValue = number != 0;
  return result;
}

Date TextToDate(std::u16string_view pText, const LocaleRules& pRules) {
  Date date;
  if (!ReadDate(pText, date, pRules)) Raise(RuntimeError::TypeMismatch);
  return date;
}

std::u16string_view BooleanText(bool pValue) noexcept {
  return pValue ? u"True" : u"False";
}

std::int32_t RoundToLong(double pValue) {
  return RoundTo<std::int32_t>(pValue);
}

std::int16_t RoundToInteger(double pValue) {
  return RoundTo<std::int16_t>(pValue);
}

Ref<Object> ToObject(const Variant& pValue) {
  const auto* object = pValue.If<Ref<Object>>();
  if (!object) Raise(RuntimeError::TypeMismatch);
  if (!*object) Raise(RuntimeError::ObjectNotSet);
  return *object;
}

Variant ConvertTo(const Variant& pValue, VariantKind pKind, const LocaleRules& pRules) {
  if (pValue.Kind() == pKind) return pValue;
  switch (pKind) {
    case VariantKind::Integer:
      return ToInteger(pValue, pRules);
    case VariantKind::Long:
      return ToLong(pValue, pRules);
    case VariantKind::Single:
      return ToSingle(pValue, pRules);
    case VariantKind::Double:
      return ToDouble(pValue, pRules);
    case VariantKind::Date:
      return ToDate(pValue, pRules);
    case VariantKind::String:
      return ToText(pValue, pRules);
    case VariantKind::Boolean:
      return ToBoolean(pValue, pRules);
    case VariantKind::Empty:
    case VariantKind::Null:
    case VariantKind::Object:
    case VariantKind::Array:
      break;
  }
  Raise(RuntimeError::TypeMismatch);
}

}  // namespace qzbase::runtime
