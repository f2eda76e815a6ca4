#include "qzbase/text/RangeString.h"

#include <cmath>

#include "qzbase/core/Arithmetic.h"
#include "qzbase/core/LocalizedText.h"
#include "qzbase/core/ModError.h"
#include "qzbase/runtime/Attempt.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/ShownNumber.h"
#include "qzbase/runtime/TextCompare.h"
#include "qzbase/text/ModString.h"
#include "qzbase/text/PlainNumber.h"

namespace qzbase::ModString {
namespace {

// The first two pieces between the brackets of an interval, which may have more.
struct Bounds {
  std::u16string_view lower;
  std::u16string_view upper;
};

// False for what does not stand in brackets or has no delimiter between them.
bool TakeBounds(std::u16string_view pInterval, Bounds& pBounds) {
  if (!pInterval.starts_with(u'[') || !pInterval.ends_with(u']')) return false;
  std::u16string_view inside = pInterval.substr(1, pInterval.size() - 2);
  if (inside.find(u';') == std::u16string_view::npos) return false;
  pBounds.lower = TakeToken(inside, u";");
  pBounds.upper = TakeToken(inside, u";");
  return true;
}

// An interval with bounds in rising order, or a number.
bool IsValidRangeItem(std::u16string_view pItem) {
  if (!pItem.starts_with(u'[')) return ModConvert::IsPlainNumber(pItem);
  Bounds bounds;
  return TakeBounds(pItem, bounds) && ModConvert::IsPlainNumber(bounds.lower) &&
         ModConvert::IsPlainNumber(bounds.upper) &&
         runtime::LeadingNumber(bounds.upper) > runtime::LeadingNumber(bounds.lower);
}

// The next item between the braces. An interval ends with its bracket, which its delimiter takes along.
std::u16string TakeItem(std::u16string_view& pInside) {
  if (!pInside.starts_with(u'[')) return std::u16string(TakeToken(pInside, u";"));
  std::u16string item(TakeToken(pInside, u"];"));
  if (!item.ends_with(u']')) item += u']';
  return item;
}

// Items are texts of any kind as long as there is no interval among them.
bool IsValidEnumeration(std::u16string_view pRange) {
  if (!pRange.ends_with(u'}')) return true;
  const bool hasIntervals = pRange.find(u'[') != std::u16string_view::npos;
  std::u16string_view inside = pRange.substr(1, pRange.size() - 2);
  do {
    const std::u16string item = TakeItem(inside);
    if (hasIntervals ? !IsValidRangeItem(item) : item.empty()) return false;
  } while (!inside.empty());
  return true;
}

// Whether the first `pLength` characters are one of the operators, which stand between commas.
bool BeginsWithOperator(std::u16string_view pRange, std::size_t pLength, std::u16string_view pOperators) {
  const std::u16string sought = std::u16string(u",").append(pRange.substr(0, pLength)).append(u",");
  return runtime::FindText(pOperators, sought) != std::u16string_view::npos;
}

bool IsValidRange(std::u16string_view pRange) {
  if (pRange.empty() || pRange == u"*") return true;
  if (BeginsWithOperator(pRange, 2, u",>=,<=,<>,")) return ModConvert::IsPlainNumber(pRange.substr(2));
  if (BeginsWithOperator(pRange, 1, u",>,<,")) return ModConvert::IsPlainNumber(pRange.substr(1));
  if (pRange.starts_with(u'[')) return IsValidRangeItem(pRange);
  return pRange.starts_with(u'{') && IsValidEnumeration(pRange);
}

// A number in a range or step; false where it is too large for one.
bool ReadBound(std::u16string_view pText, double& pNumber) {
  return static_cast<bool>(runtime::Attempt([&] { pNumber = runtime::LeadingNumber(pText); }));
}

// A translated word that stands between two values.
std::u16string Between(std::u16string_view pKey) {
  return u' ' + LocalizedText(pKey) + u' ';
}

}  // namespace

std::int32_t CheckRangeStringValid(std::u16string_view Range) {
  return IsValidRange(TrimBlanks(Range)) ? 0 : ModError::StatusOf(BuiltInError::InvRangeString);
}

std::u16string HumanReadable(std::u16string_view Range) {
  if (Range.empty()) return {};
  std::u16string text = LocalizedText(u"allowed range") + u' ';
  std::u16string separator;
  for (const char16_t character : Range) {
    if (character == u'[')
      separator = Between(u"To");
    else if (character == u']' || character == u'{')
      separator = Between(u"Or");
    else if (character == u'}')
      separator.clear();
    else if (character == u';')
      text += separator;
    else
      text += character;
  }
  return text;
}

bool IsInRange(double Value, std::u16string_view Range, std::u16string_view Step) {
  if (Range.empty()) return true;
  double lower = 0;
  double upper = 0;
  double step = 0;
  if (!Range.starts_with(u'[')) return ReadBound(Range, lower) && lower == Value;
  Bounds bounds;
  if (!TakeBounds(Range, bounds) || !ReadBound(bounds.lower, lower) || !ReadBound(bounds.upper, upper)) return false;
  if (lower > Value || upper < Value || !ReadBound(Step, step)) return false;
  if (step == 0) return true;
  const double steps = Divide(Add(Value, -lower), step);
  return runtime::ShowSame(steps, std::nearbyint(steps));
}

}  // namespace qzbase::ModString
