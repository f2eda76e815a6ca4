#include "qzbase/runtime/Format.h"

#include <optional>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/DateReader.h"
#include "qzbase/runtime/NamedNumberFormat.h"
#include "qzbase/runtime/NumberReader.h"
#include "qzbase/runtime/NumberSection.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/PatternPieces.h"
#include "qzbase/runtime/PlacePattern.h"
#include "qzbase/runtime/ShownNumber.h"
#include "qzbase/runtime/TextPattern.h"

namespace qzbase::runtime {
namespace {

// Empty for a text that is neither a number nor a date.
std::optional<double> NumberOfText(std::u16string_view pText, const LocaleRules& pRules) {
  double number = 0;
  if (ReadNumber(pText, number, pRules) == ReadResult::Read) return number;
  Date date;
  if (ReadDate(pText, date, pRules)) return date.days;
  return std::nullopt;
}

// A single through a pattern has the digits of its own text: 0.1 is 0.1000000000 and not 0.1000000015.
std::optional<double> NumberOf(const Variant& pValue, const LocaleRules& pRules) {
  if (const double* number = pValue.If<double>()) return *number;
  if (const float* number = pValue.If<float>()) return AsShown(*number);
  if (const std::u16string* text = pValue.If<std::u16string>()) return NumberOfText(*text, pRules);
  return ToDouble(pValue, pRules);
}

// True and false are the numbers -1 and 0 here.
std::u16string DefaultText(const Variant& pValue, const LocaleRules& pRules) {
  if (const bool* truth = pValue.If<bool>()) return *truth ? u"-1" : u"0";
  return ToText(pValue, pRules);
}

std::u16string FormatNull(std::u16string_view pPattern, const LocaleRules& pRules) {
  std::u16string text;
  if (pPattern.empty() || FindNamedNumberFormat(pPattern) != NamedNumberFormat::None) return text;
  const PatternSections sections(pPattern);
  if (sections.Kind(0) != PatternKind::Date && sections.Kind(0) != PatternKind::Text)
    AppendNumber(text, DecimalDigits(0), sections.Section(3), SignRule::None, pRules);
  return text;
}

// A number that is no day of the calendar has its default text.
std::u16string FormatAsDate(const Variant& pValue, double pDays, std::u16string_view pPattern,
                            const LocaleRules& pRules, WeekRule pWeek) {
  if (pValue.Kind() != VariantKind::Date && !IsInCalendar({pDays})) return NumberText(pDays, pRules);
  return FormatDate({pDays}, pPattern, pRules, pWeek);
}

std::u16string FormatByKind(const Variant& pValue, std::u16string_view pPattern, const LocaleRules& pRules,
                            WeekRule pWeek) {
  if (pValue.IsNull()) return FormatNull(pPattern, pRules);
  const NamedNumberFormat named = FindNamedNumberFormat(pPattern);
  const bool isGeneral = pPattern.empty() || (pValue.IsEmpty() && named == NamedNumberFormat::GeneralNumber);
  if (isGeneral) return DefaultText(pValue, pRules);

  const bool isNamed = named != NamedNumberFormat::None;
  const PatternSections sections(isNamed ? std::u16string_view() : pPattern);
  if (sections.Kind(0) == PatternKind::Text) return FormatText(DefaultText(pValue, pRules), pPattern);

  const std::optional<double> number = NumberOf(pValue, pRules);
  if (!number) return DefaultText(pValue, pRules);
  if (isNamed) return FormatNumber(*number, pPattern, pRules);
  const std::size_t index = sections.IndexFor(*number);
  if (sections.Kind(index) == PatternKind::Date)
    return FormatAsDate(pValue, *number, sections.Section(index), pRules, pWeek);
  return FormatNumber(*number, pPattern, pRules);
}

}  // namespace

std::u16string Format(const Variant& pValue, std::u16string_view pPattern, const LocaleRules& pRules, WeekRule pWeek) {
  std::u16string text;
  const double* number = pValue.If<double>();
  if (number == nullptr || !AppendByPlaces(text, *number, pPattern, pRules))
    text = FormatByKind(pValue, pPattern, pRules, pWeek);
  return text;
}

}  // namespace qzbase::runtime
