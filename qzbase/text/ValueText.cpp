#include "qzbase/text/ValueText.h"

#include <cmath>

#include "qzbase/core/Arithmetic.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/CollectedDigits.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/DatePattern.h"
#include "qzbase/runtime/Format.h"
#include "qzbase/runtime/NumberPattern.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/PlacePattern.h"
#include "qzbase/runtime/ShownNumber.h"
#include "qzbase/runtime/TextCompare.h"
#include "qzbase/text/EnumRange.h"
#include "qzbase/text/ModString.h"
#include "qzbase/text/NumberDelims.h"

namespace qzbase::ModConvert {
namespace {

using runtime::Date;
using runtime::LocaleRules;
using runtime::Variant;

// "SF3": significant figures.
constexpr std::u16string_view kFiguresMark = u"SF";

bool IsFiguresFormat(std::u16string_view pFormat) {
  return runtime::EqualName(pFormat.substr(0, kFiguresMark.size()), kFiguresMark);
}

std::int32_t FiguresOf(std::u16string_view pFormat) {
  const std::u16string_view figures = pFormat.substr(kFiguresMark.size());
  if (figures.size() == 1 && runtime::IsDecimalDigit(figures.front())) return figures.front() - u'0';
  return runtime::RoundToLong(std::trunc(runtime::LeadingNumber(figures)));
}

// Digits before the point; of magnitudes below 1 the fewer the smaller they are. Error 6 for what is not finite.
std::int32_t IntegerDigits(double pValue) {
  if (!std::isfinite(pValue)) runtime::Raise(runtime::RuntimeError::Overflow);
  return pValue == 0 ? 0 : static_cast<std::int32_t>(std::log10(std::fabs(pValue))) + 1;
}

// The number rounded to its last figure, printed with as many decimals as there are figures behind the point.
void AppendFigures(std::u16string& pText, double pValue, std::int32_t pSigFigs, const LocaleRules& pRules) {
  const auto decimals = runtime::CheckedNarrow<std::int32_t>(std::int64_t{pSigFigs} - IntegerDigits(pValue));
  const double power = PowerOfTen(decimals);
  const double scaled = Multiply(pValue, power);
  double whole = 0;
  if (runtime::RoundClearly(std::fabs(scaled), whole) &&
      runtime::AppendDecimal(pText, whole, decimals, pValue < 0 && whole > 0, pRules))
    return;
  whole = std::trunc(runtime::AsShown(scaled) + 0.5 * Sign(pValue));
  std::u16string pattern = u"#0";
  if (decimals > 0) pattern.append(u".").append(static_cast<std::size_t>(decimals), u'0');
  pText += runtime::FormatNumber(Divide(whole, power), pattern, pRules);
}

// A moment whose parts cannot be taken for each other in any short date or time.
constexpr runtime::DateParts kSample = {.year = 2031, .month = 11, .day = 28, .hour = 20, .minute = 15, .second = 42};

struct SamplePart {
  std::u16string_view digits;
  std::u16string_view letters;
};

// In this order: a year of four digits holds one of two.
constexpr SamplePart kDateParts[] = {{u"2031", u"YYYY"}, {u"31", u"YY"}, {u"11", u"MM"}, {u"28", u"DD"}};
constexpr SamplePart kTimeParts[] = {{u"20", u"HH"}, {u"15", u"NN"}, {u"42", u"SS"}};

template <std::size_t kCount>
std::u16string PatternOf(std::u16string_view pNamedFormat, const SamplePart (&pParts)[kCount],
                         const LocaleRules& pRules) {
  std::u16string text = runtime::FormatDate(runtime::MakeDate(kSample), pNamedFormat, pRules);
  for (const SamplePart& part : pParts) text = ModString::ReplaceAll(text, part.digits, part.letters);
  return text;
}

}  // namespace

std::u16string BoolToString(bool pValue, std::u16string_view pFormat) {
  std::u16string word = ModString::EnumVal(pValue ? 1 : 2, pFormat);
  if (word.empty()) word = pValue ? u"true" : u"false";
  return word;
}

std::u16string DateToString(Date pValue, std::u16string_view pFormat, const LocaleRules& pRules) {
  if (pValue == kInvalidDate) return std::u16string(kInvalidString);
  return runtime::Format(pValue, pFormat, pRules);
}

std::u16string TimeToString(Date pValue, std::u16string_view pFormat, const LocaleRules& pRules) {
  return DateToString(pValue, pFormat.empty() ? u"Long Time" : pFormat, pRules);
}

std::u16string LongToString(std::int32_t pValue, std::u16string_view pFormat, const LocaleRules& pRules) {
  return runtime::Format(pValue, pFormat, pRules);
}

std::u16string DoubleToString(double pValue, std::u16string_view pFormat, bool pLocalize, const LocaleRules& pRules) {
  std::u16string text = pValue == kInvalidDouble   ? std::u16string(kInvalidString)
                        : IsFiguresFormat(pFormat) ? DoubleToStringSF(pValue, FiguresOf(pFormat), pRules)
                                                   : runtime::Format(pValue, pFormat, pRules);
  if (!pLocalize) DelocalizeNumber(text, pRules);
  return text;
}

std::u16string DoubleToStringSF(double pValue, std::int32_t pSigFigs, const LocaleRules& pRules) {
  std::u16string text;
  if (pValue == kInvalidDouble)
    text = kInvalidString;
  else
    AppendFigures(text, pValue, pSigFigs, pRules);
  return text;
}

std::u16string ColorToString(std::int32_t pValue) {
  return runtime::NumberText(pValue);
}

std::u16string EnumToString(std::int32_t pValue, std::u16string_view pFormat) {
  return ModString::EnumVal(pValue, pFormat);
}

std::u16string ValueToString(const Variant& pValue, QZVarType pVarType, std::u16string_view pFormat, bool pLocalize,
                             const LocaleRules& pRules) {
  if (pValue.IsEmpty()) return std::u16string(kInvalidString);
  switch (pVarType) {
    case EVTBoolean:
      return BoolToString(runtime::ToBoolean(pValue, pRules), pFormat);
    case EVTDouble:
      return DoubleToString(runtime::ToDouble(pValue, pRules), pFormat, pLocalize, pRules);
    case EVTLong:
      return LongToString(runtime::ToLong(pValue, pRules), pFormat, pRules);
    case EVTString:
      return runtime::ToText(pValue, pRules);
    case EVTDate:
      return DateToString(runtime::ToDate(pValue, pRules), pFormat, pRules);
    case EVTColor:
      return ColorToString(runtime::ToLong(pValue, pRules));
    case EVTEnum:
      return EnumToString(runtime::ToLong(pValue, pRules), pFormat);
    case EVTInvalid:
    case EVTObject:
      break;
  }
  return {};
}

std::u16string WindowsTimeFormat(const LocaleRules& pRules) {
  return PatternOf(u"Short Time", kTimeParts, pRules);
}

std::u16string WindowsDateFormat(const LocaleRules& pRules) {
  return PatternOf(u"Short Date", kDateParts, pRules);
}

}  // namespace qzbase::ModConvert
