#include "qzbase/runtime/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/CollectedDigits.h"
#include "qzbase/runtime/DecimalDigits.h"

namespace qzbase::runtime {
namespace {

// Gathers a number text, which `Finish` appends in one go. What is gathered never outgrows the room: a sign, the
// digits of a double with the zeros round them, the delimiter and an exponent.
class NumberTail {
 public:
  explicit NumberTail(std::u16string& pText) : text_(pText) {}

  void Add(char16_t pCharacter) { *end_++ = pCharacter; }
  void Add(std::string_view pDigits) { end_ = std::copy(pDigits.begin(), pDigits.end(), end_); }
  void AddZeros(std::int32_t pCount) { end_ = std::fill_n(end_, pCount, u'0'); }
  void AddDelimiter(std::u16string_view pDelimiter) {
    if (pDelimiter.size() == 1) return Add(pDelimiter.front());
    Finish();  // of unknown length
    text_ += pDelimiter;
  }
  void Finish() {
    text_.append(room_.data(), static_cast<std::size_t>(end_ - room_.data()));
    end_ = room_.data();
  }

 private:
  std::u16string& text_;
  std::array<char16_t, 40> room_;
  char16_t* end_ = room_.data();
};

void AddMantissa(NumberTail& pTail, std::string_view pDigits, std::int32_t pPoint, std::u16string_view pDecimal) {
  const auto count = static_cast<std::int32_t>(pDigits.size());
  if (pPoint <= 0) {
    pTail.Add(u'0');
    pTail.AddDelimiter(pDecimal);
    pTail.AddZeros(-pPoint);
    pTail.Add(pDigits);
  } else if (pPoint >= count) {
    pTail.Add(pDigits);
    pTail.AddZeros(pPoint - count);
  } else {
    const auto point = static_cast<std::size_t>(pPoint);
    pTail.Add(pDigits.substr(0, point));
    pTail.AddDelimiter(pDecimal);
    pTail.Add(pDigits.substr(point));
  }
}

void AddExponent(NumberTail& pTail, std::int32_t pExponent) {
  const std::int32_t power = std::abs(pExponent);
  const auto digit = [](std::int32_t pDigit) { return static_cast<char16_t>(u'0' + pDigit); };
  pTail.Add(u'E');
  pTail.Add(pExponent < 0 ? u'-' : u'+');
  if (power >= 100) pTail.Add(digit(power / 100));
  pTail.Add(digit(power / 10 % 10));
  pTail.Add(digit(power % 10));
}

void Append(std::u16string& pText, double pValue, std::int32_t pMaxDigits, const LocaleRules& pRules) {
  const DecimalDigits decimal(pValue, pMaxDigits);
  if (!decimal.IsFinite()) {
    pText += std::isnan(pValue) ? u"-1.#IND" : decimal.IsNegative() ? u"-1.#INF" : u"1.#INF";
    return;
  }
  if (decimal.IsZero()) {
    pText += u'0';
    return;
  }
  const std::string_view digits = decimal.Digits();
  const std::int32_t point = decimal.Point();
  const std::int32_t decimals = static_cast<std::int32_t>(digits.size()) - point;
  const bool exponentForm = point > pMaxDigits || (point <= 0 && decimals > pMaxDigits);
  NumberTail tail(pText);
  if (decimal.IsNegative()) tail.Add(u'-');  // whatever the locale's sign is: so does the platform
  AddMantissa(tail, digits, exponentForm ? 1 : point, pRules.decimal);
  if (exponentForm) AddExponent(tail, point - 1);
  tail.Finish();
}

// The characters of a text but the blanks, one by one.
class Unblanked {
 public:
  explicit Unblanked(std::u16string_view pText) : rest_(pText) { SkipBlanks(); }

  char16_t Next() const { return rest_.empty() ? u'\0' : rest_.front(); }
  bool TakeAny(std::u16string_view pCharacters) {
    if (rest_.empty() || pCharacters.find(rest_.front()) == std::u16string_view::npos) return false;
    rest_.remove_prefix(1);
    SkipBlanks();
    return true;
  }
  // `pTake` takes digits off the front of the view it is given.
  template <typename T>
  void TakeDigits(T pTake) {
    while (IsDecimalDigit(Next())) {
      pTake(rest_);
      SkipBlanks();
    }
  }

 private:
  void SkipBlanks() {
    while (!rest_.empty() && (rest_.front() == u' ' || rest_.front() == u'\t' || rest_.front() == u'\n'))
      rest_.remove_prefix(1);
  }

  std::u16string_view rest_;
};

}  // namespace

std::u16string NumberText(double pValue, const LocaleRules& pRules) {
  std::u16string text;
  Append(text, pValue, DecimalDigits::kTextDigits, pRules);
  return text;
}

std::u16string NumberText(float pValue, const LocaleRules& pRules) {
  std::u16string text;
  Append(text, static_cast<double>(pValue), DecimalDigits::kFloatDigits, pRules);
  return text;
}

std::u16string NumberText(std::int32_t pValue) {
  std::u16string text;
  AppendNumberText(text, pValue);
  return text;
}

void AppendNumberText(std::u16string& pText, double pValue, const LocaleRules& pRules) {
  Append(pText, pValue, DecimalDigits::kTextDigits, pRules);
}

void AppendNumberText(std::u16string& pText, std::int32_t pValue) {
  std::array<char, 12> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), pValue).ptr;
  pText.append(digits.data(), end);
}

double LeadingNumber(std::u16string_view pText) {
  Unblanked rest(pText);
  CollectedDigits digits;
  const auto takeDigits = [&digits](std::u16string_view& pRest) { digits.TakeDigits(pRest); };

  const bool negative = rest.Next() == u'-';
  rest.TakeAny(u"+-");
  rest.TakeDigits(takeDigits);
  if (rest.TakeAny(u".")) {
    digits.BeginDecimals();
    rest.TakeDigits(takeDigits);
  }
  if (digits.IsEmpty()) return 0;
  if (rest.TakeAny(u"EeDd")) {
    const bool negativeExponent = rest.Next() == u'-';
    rest.TakeAny(u"+-");
    std::int32_t exponent = 0;
    rest.TakeDigits([&exponent](std::u16string_view& pRest) { TakeExponentDigits(pRest, exponent); });
    digits.SetExponent(negativeExponent ? -exponent : exponent);
  }
  double value = 0;
  if (!digits.ToNumber(negative, value)) Raise(RuntimeError::Overflow);
  return value;
}

}  // namespace qzbase::runtime
