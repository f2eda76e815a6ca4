// A host may have given a registered error the number 0, and raising it returns then. What follows each `RaiseBuiltIn`
// goes on as if nothing was wrong, until the platform's own conversion raises.
#include "qzbase/text/ValueCheck.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "qzbase/core/ModError.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/DateReader.h"
#include "qzbase/runtime/NumberReader.h"
#include "qzbase/runtime/TextCompare.h"
#include "qzbase/text/NumberDelims.h"
#include "qzbase/text/RangeString.h"
#include "qzbase/text/ValueReader.h"

namespace qzbase::ModConvert {
namespace {

using ModError::RaiseBuiltIn;
using runtime::LocaleRules;
using runtime::ReadResult;

// Whether the text says that there is no value, and that is allowed; raises where it is not.
bool IsNoValue(std::u16string_view pValue, bool pAllowInvalid) {
  if (pValue != kInvalidString) return false;
  if (!pAllowInvalid) RaiseBuiltIn(BuiltInError::InValue);
  return pAllowInvalid;
}

bool Holds(std::u16string_view pText, std::u16string_view pDelimiter) {
  return !pDelimiter.empty() && pText.find(pDelimiter) != std::u16string_view::npos;
}

bool HoldsText(std::u16string_view pText, std::u16string_view pSought, const LocaleRules& pRules) {
  return runtime::FindText(pText, pSought, 0, pRules) != std::u16string_view::npos;
}

// The text without the currency, whose own marks ("kr.") delimit nothing.
struct NumberPieces {
  NumberPieces(std::u16string_view pText, const LocaleRules& pRules) : front(pText) {
    const std::size_t at = pRules.currency.empty() ? std::u16string_view::npos : pText.find(pRules.currency);
    if (at == std::u16string_view::npos) return;
    front = pText.substr(0, at);
    back = pText.substr(at + pRules.currency.size());
  }

  bool Hold(std::u16string_view pDelimiter) const { return Holds(front, pDelimiter) || Holds(back, pDelimiter); }

  std::u16string_view front;
  std::u16string_view back;
};

// Whether the delimiter of thousands stands in a number, or that of money. One that is the decimal delimiter groups
// nothing.
bool IsGrouped(const NumberPieces& pNumber, const LocaleRules& pRules) {
  const auto groups = [&](std::u16string_view pDelimiter) {
    return pNumber.Hold(pDelimiter) && !runtime::EqualText(pDelimiter, WindowsDecimalDelim(pRules), pRules);
  };
  return groups(WindowsThousandDelim(pRules)) || groups(pRules.monetaryThousands);
}

double CheckedDouble(std::u16string_view pValue, bool pLocalized, const LocaleRules& pRules) {
  ShortText room;
  const std::u16string_view text = LocalizedNumber(pValue, pLocalized, room, pRules);
  if (IsGrouped({text, pRules}, pRules)) RaiseBuiltIn(BuiltInError::InvFormat);
  double number = 0;
  if (runtime::ReadNumber(text, number, pRules) == ReadResult::Read) return number;
  RaiseBuiltIn(BuiltInError::InvFormat);
  return runtime::TextToDouble(text, pRules);
}

// The number is judged as it stands, before it is rounded.
bool ReadWholeNumber(std::u16string_view pValue, std::int32_t& pNumber, const LocaleRules& pRules) {
  constexpr double kMost = std::numeric_limits<std::int32_t>::max();
  const NumberPieces pieces(pValue, pRules);
  for (const std::u16string_view delimiter :
       {WindowsThousandDelim(pRules), WindowsDecimalDelim(pRules), std::u16string_view(pRules.monetaryThousands),
        std::u16string_view(pRules.monetaryDecimal)})
    if (pieces.Hold(delimiter)) return false;
  double number = 0;
  return runtime::ReadNumber(pValue, number, pRules) == ReadResult::Read && std::fabs(number) <= kMost &&
         runtime::ReadNumber(pValue, pNumber, pRules) == ReadResult::Read;
}

std::int32_t CheckedLong(std::u16string_view pValue, const LocaleRules& pRules) {
  std::int32_t number = 0;
  if (ReadWholeNumber(pValue, number, pRules)) return number;
  RaiseBuiltIn(BuiltInError::InvFormat);
  return runtime::TextToLong(pValue, pRules);
}

void CheckDateText(std::u16string_view pValue, const LocaleRules& pRules) {
  runtime::Date date;
  if (runtime::ReadDate(pValue, date, pRules)) return;
  RaiseBuiltIn(BuiltInError::InvFormat);
  runtime::TextToDate(pValue, pRules);
}

// "[0;1] 'auto'" names the value "auto".
bool IsNamed(std::u16string_view pValue, std::u16string_view pRange, const LocaleRules& pRules) {
  constexpr std::u16string_view kQuote = u"'";
  if (pRange.find(kQuote) == std::u16string_view::npos) return false;
  ShortText name;
  return HoldsText(pRange, name.Append(kQuote).Append(pValue).Append(kQuote).Text(), pRules);
}

bool IsTextAllowed(std::u16string_view pValue, std::u16string_view pRange, const LocaleRules& pRules) {
  if (pRange.empty() || pRange.find(u"{*") != std::u16string_view::npos ||
      pRange.find(u"*}") != std::u16string_view::npos)
    return true;
  return !pValue.empty() && (pRange == u"*" || HoldsText(pRange, pValue, pRules));
}

// Whether the value is in the range; what is no value of the type raises.
bool IsAllowed(std::u16string_view pValue, QZVarType pVarType, std::u16string_view pRange, std::u16string_view pStep,
               std::u16string_view pFormat, bool pLocalized, const LocaleRules& pRules) {
  switch (pVarType) {
    case EVTBoolean:
      return HoldsText(pFormat.empty() ? kDefaultBooleans : pFormat, pValue, pRules);
    case EVTDouble:
      return ModString::IsInRange(CheckedDouble(pValue, pLocalized, pRules), pRange, pStep);
    case EVTLong: {
      const std::int32_t number = CheckedLong(pValue, pRules);
      return !pFormat.empty() || ModString::IsInRange(number, pRange, pStep);
    }
    case EVTString:
      return IsTextAllowed(pValue, pRange, pRules);
    case EVTDate:
      CheckDateText(pValue, pRules);
      return true;
    case EVTEnum:
      return StringToEnum(pValue, pFormat) >= 1;
    case EVTInvalid:
    case EVTColor:
    case EVTObject:
      break;
  }
  return true;
}

}  // namespace

void CheckDouble(std::u16string_view pValue, bool pAllowInvalid, bool pLocalized, const LocaleRules& pRules) {
  if (!IsNoValue(pValue, pAllowInvalid)) CheckedDouble(pValue, pLocalized, pRules);
}

void CheckLong(std::u16string_view pValue, bool pAllowInvalid, const LocaleRules& pRules) {
  if (!IsNoValue(pValue, pAllowInvalid)) CheckedLong(pValue, pRules);
}

void CheckDate(std::u16string_view pValue, bool pAllowInvalid, const LocaleRules& pRules) {
  if (!IsNoValue(pValue, pAllowInvalid)) CheckDateText(pValue, pRules);
}

void CheckValue(std::u16string_view pValue, QZVarType pVarType, std::u16string_view pRange, std::u16string_view pStep,
                std::u16string_view pFormat, bool pLocalized, bool pAllowInvalid, const LocaleRules& pRules) {
  if (IsNoValue(pValue, pAllowInvalid) || IsNamed(pValue, pRange, pRules) ||
      IsAllowed(pValue, pVarType, pRange, pStep, pFormat, pLocalized, pRules))
    return;
  if (pVarType == EVTString && pValue.empty()) return RaiseBuiltIn(BuiltInError::EmptyText);
  std::u16string information(pValue);
  RaiseBuiltIn(BuiltInError::InvRange, information.append(u" ").append(pRange));
}

std::int32_t CheckNrOutFormat(std::u16string_view pFormat) {
  return pFormat.find(u',') == std::u16string_view::npos ? 0 : ModError::StatusOf(BuiltInError::InvOutFormat);
}

bool IsBooleanRange(std::u16string_view pRange) {
  return ModString::HasBraces(pRange) && std::count(pRange.begin(), pRange.end(), u';') == 1;
}

bool IsEnumRange(std::u16string_view pRange) {
  return ModString::HasBraces(pRange);
}

}  // namespace qzbase::ModConvert
