// Texts that users type for a value: checking raises documented errors only. A text that passes is a value, and what is
// shown for that value passes again and is the same value.
//
// Input: the locale, the type, flags (1 localised, 2 no value allowed), then text, step, format and range, one a line.
#include <algorithm>
#include <cmath>

#include "fuzz/Expect.h"
#include "fuzz/Input.h"
#include "qzbase/core/ModError.h"
#include "qzbase/runtime/CollectedDigits.h"
#include "qzbase/runtime/DateReader.h"
#include "qzbase/runtime/TextCompare.h"
#include "qzbase/text/EnumRange.h"
#include "qzbase/text/ValueCheck.h"
#include "qzbase/text/ValueReader.h"
#include "qzbase/text/ValueText.h"

using namespace qzbase;
using namespace qzbase::ModConvert;
using fuzz::Require;
using fuzz::Succeeds;
using runtime::Variant;

namespace {

struct Entry {
  QZVarType type;
  std::u16string text, step, format, range;
  bool isLocalized;
  bool allowsNone;
  const runtime::LocaleRules& rules;
};

bool Passes(const Entry& pEntry, std::u16string_view pText, std::u16string_view pRange, std::u16string_view pStep,
            std::u16string_view pFormat) {
  static const auto numberOf = [](BuiltInError pError) { return ModError::ErrCodeOf(ModError::IndexOf(pError)); };
  static const std::int32_t value = numberOf(BuiltInError::InValue), format = numberOf(BuiltInError::InvFormat),
                            range = numberOf(BuiltInError::InvRange), empty = numberOf(BuiltInError::EmptyText);
  constexpr std::int32_t kOverflow = 6;  // of the division by the step
  return Succeeds({value, format, range, empty, kOverflow}, [&] {
    CheckValue(pText, pEntry.type, pRange, pStep, pFormat, pEntry.isLocalized, pEntry.allowsNone, pEntry.rules);
  });
}

// The largest doubles are shown rounded up, beyond the range.
bool IsShownTooLarge(double pValue) {
  return std::fabs(pValue) > 1.797693134862315e308;
}

// Without a format: a value is shown as users type it.
void CheckShown(const Entry& pEntry, const Variant& pValue) {
  if (const double* number = pValue.If<double>(); number != nullptr && IsShownTooLarge(*number)) return;
  const std::u16string shown = ValueToString(pValue, pEntry.type, u"", pEntry.isLocalized, pEntry.rules);
  Require(Passes(pEntry, shown, u"", u"", u""));
  const Variant again = StringToValue(shown, pEntry.type, u"", pEntry.isLocalized, pEntry.rules);
  Require(ValueToString(again, pEntry.type, u"", pEntry.isLocalized, pEntry.rules) == shown);
}

// Where two different words stand for true and false.
void CheckWords(const Entry& pEntry, bool pValue) {
  const std::u16string word = ModString::EnumVal(pValue ? 1 : 2, pEntry.format);
  const std::u16string other = ModString::EnumVal(pValue ? 2 : 1, pEntry.format);
  if (!IsBooleanRange(pEntry.format) || word.empty() || word == kInvalidString) return;
  if (runtime::EqualText(word, other, pEntry.rules)) return;
  Require(BoolToString(pValue, pEntry.format) == word && Passes(pEntry, word, u"", u"", pEntry.format));
  Require(StringToBool(word, pEntry.format, pEntry.rules) == pValue);
}

bool IsInvalid(const Variant& pValue, QZVarType pType) {
  if (const double* number = pValue.If<double>()) return *number == kInvalidDouble;
  if (const auto* whole = pValue.If<std::int32_t>()) return *whole == (pType == EVTEnum ? kInvalidEnum : kInvalidLong);
  const auto* date = pValue.If<runtime::Date>();
  return date != nullptr && *date == kInvalidDate;
}

// -9.9999999999E+300 and -2147483636 have ten digits at least, fewer only behind "&H".
bool SaysInvalid(std::u16string_view pText) {
  return std::count_if(pText.begin(), pText.end(), runtime::IsDecimalDigit) >= 10 ||
         pText.find(u'&') != std::u16string_view::npos;
}

bool ReadsAsDayZero(const Entry& pEntry) {
  runtime::Date date{1};
  return runtime::ReadDate(pEntry.text, date, pEntry.rules) && date == kInvalidDate;
}

// A text that has passed without being named by the range.
void CheckValueOf(const Entry& pEntry) {
  const Variant value = StringToValue(pEntry.text, pEntry.type, pEntry.format, pEntry.isLocalized, pEntry.rules);
  if (IsInvalid(value, pEntry.type)) {
    // A format of dates reads other dates than the check, and the invalid values themselves can be typed.
    Require(pEntry.type == EVTDate ? !pEntry.format.empty() || ReadsAsDayZero(pEntry) : SaysInvalid(pEntry.text));
  } else if (pEntry.type == EVTEnum) {
    Require(EnumToString(*value.If<std::int32_t>(), pEntry.format) == pEntry.text);
  } else if (pEntry.type == EVTBoolean) {
    CheckWords(pEntry, true);
    CheckWords(pEntry, false);
  } else if (pEntry.type == EVTDouble || pEntry.type == EVTLong || pEntry.type == EVTDate) {
    CheckShown(pEntry, value);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t pSize) {
  fuzz::Input input(pData, pSize);
  const auto& rules = fuzz::ChooseLocale(input.Take<std::uint8_t>());
  const auto type = static_cast<QZVarType>(input.Take<std::uint8_t>() % 10);  // 9 is none
  const auto flags = input.Take<std::uint8_t>();
  const std::u16string text = input.TakeLine(), step = input.TakeLine(), format = input.TakeLine();
  const Entry entry{type, text, step, format, input.TakeText(pSize), (flags & 1) != 0, (flags & 2) != 0, rules};

  const bool isNamed = entry.range.find(u'\'') != std::u16string::npos;
  if (Passes(entry, text, entry.range, step, format) && text != kInvalidString && !isNamed) CheckValueOf(entry);

  Variant value;
  Succeeds({}, [&] {
    value = StringToValue(text, type, format, entry.isLocalized, rules);
    CheckNrOutFormat(format);
    IsEnumRange(entry.range);
  });
  Succeeds({5, 6, 11}, [&] { ValueToString(value, type, format, entry.isLocalized, rules); });
  return 0;
}
