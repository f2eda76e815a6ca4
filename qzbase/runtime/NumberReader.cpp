#include "qzbase/runtime/NumberReader.h"

#include <limits>

#include "qzbase/runtime/Characters.h"
#include "qzbase/runtime/CollectedDigits.h"

namespace qzbase::runtime {
namespace {

constexpr std::u16string_view kGroupingBlanks = u" \u00A0\u202F";

// Value of a hexadecimal digit, 16 for any other character.
std::uint32_t HexDigit(char16_t pCharacter) {
  if (IsDecimalDigit(pCharacter)) return static_cast<std::uint32_t>(pCharacter - u'0');
  const int letter = pCharacter | 0x20;
  return letter >= 'a' && letter <= 'f' ? static_cast<std::uint32_t>(letter - 'a' + 10) : 16;
}

// One walk from front to back:
//
//   front     blanks, signs, "(" and currency in any order, each mark once
//   number    digits and delimiters with an exponent, or &H... or &O...; behind currency neither of the two
//   back      blanks, signs, ")", currency and stray thousands delimiters in any order; a sign that stood in front may
//             not come again
//
// The plain "-" and "+" are signs beside the locale's own, since that is what number texts are written with. Monetary
// delimiters count everywhere, where they do not contradict the others.
class NumberScanner {
 public:
  NumberScanner(std::u16string_view pText, const LocaleRules& pRules) : rest_(pText), rules_(pRules) {}

  // Whether the whole text is a number.
  bool Scan() {
    if (!IsDecimalDigit(Next())) ScanFront();
    if (isBits_ = !currency_ && Next() == u'&'; isBits_) return ScanBits() && ScanBack();
    return ScanDecimal() && ScanBack();
  }

  // The number scanned. False when it is too large.
  template <typename T>
  bool ToNumber(T& pValue) const {
    return isBits_ ? BitsToNumber(pValue) : digits_.ToNumber(negative_, pValue);
  }

 private:
  enum class Delimiter : std::uint8_t { None, Decimal, Thousands };

  void ScanFront();
  bool ScanDecimal();
  bool ScanExponent();
  bool ScanBits();
  bool ScanBack();

  char16_t Next() const { return rest_.empty() ? u'\0' : rest_.front(); }
  bool Take(char16_t pCharacter);
  bool Take(std::u16string_view pWord);
  bool TakeMinus() { return Take(u'-') || Take(rules_.negativeSign); }
  bool TakePlus() { return Take(u'+') || Take(rules_.positiveSign); }
  bool TakeBlank();
  bool TakeThousands(std::u16string_view pDelimiter);
  Delimiter TakeDelimiter();
  bool TakeThousands();

  template <typename T>
  bool BitsToNumber(T& pValue) const;

  std::u16string_view rest_;
  const LocaleRules& rules_;
  CollectedDigits digits_;
  std::uint64_t bits_ = 0;
  bool isBits_ = false;
  bool minus_ = false;  // in front, as the next three
  bool plus_ = false;
  bool open_ = false;
  bool currency_ = false;
  bool negative_ = false;
};

bool NumberScanner::Take(char16_t pCharacter) {
  if (Next() != pCharacter) return false;
  rest_.remove_prefix(1);
  return true;
}

bool NumberScanner::Take(std::u16string_view pWord) {
  if (pWord.empty() || !rest_.starts_with(pWord)) return false;
  rest_.remove_prefix(pWord.size());
  return true;
}

bool NumberScanner::TakeBlank() {
  if (!IsBlank(Next())) return false;
  rest_.remove_prefix(1);
  return true;
}

// One blank groups as well as another: users have no key for the no-break ones.
bool NumberScanner::TakeThousands(std::u16string_view pDelimiter) {
  const bool anyBlank = pDelimiter.size() == 1 && kGroupingBlanks.find(pDelimiter.front()) != std::u16string_view::npos;
  if (!anyBlank) return Take(pDelimiter);
  if (rest_.empty() || kGroupingBlanks.find(rest_.front()) == std::u16string_view::npos) return false;
  rest_.remove_prefix(1);
  return true;
}

NumberScanner::Delimiter NumberScanner::TakeDelimiter() {
  if (rest_.empty()) return Delimiter::None;
  if (Take(rules_.decimal)) return Delimiter::Decimal;
  if (TakeThousands(rules_.thousands)) return Delimiter::Thousands;
  if (Take(rules_.monetaryDecimal)) return Delimiter::Decimal;
  return TakeThousands(rules_.monetaryThousands) ? Delimiter::Thousands : Delimiter::None;
}

bool NumberScanner::TakeThousands() {
  const std::u16string_view before = rest_;
  if (TakeDelimiter() == Delimiter::Thousands) return true;
  rest_ = before;
  return false;
}

void NumberScanner::ScanFront() {
  const auto once = [](bool& pSeen, bool pTaken) { return pTaken && (pSeen = true); };
  while (TakeBlank() || (!minus_ && once(minus_, TakeMinus())) || (!plus_ && once(plus_, TakePlus())) ||
         (!open_ && once(open_, Take(u'('))) || (!currency_ && once(currency_, Take(rules_.currency)))) {
  }
  negative_ = minus_ || open_;
}

// Thousands delimiters are dropped wherever they stand behind the first digit or the decimal delimiter.
bool NumberScanner::ScanDecimal() {
  bool begun = IsDecimalDigit(Next());
  bool decimals = false;
  for (;;) {
    digits_.TakeDigits(rest_);
    const Delimiter delimiter = TakeDelimiter();
    if (delimiter == Delimiter::None) break;
    if (delimiter == Delimiter::Decimal ? decimals : !begun) return false;
    begun = true;
    if (delimiter == Delimiter::Decimal) {
      decimals = true;
      digits_.BeginDecimals();
    }
  }
  if (digits_.IsEmpty()) return false;
  const char16_t mark = Next();
  const std::u16string_view before = rest_;
  if (!currency_ && (mark == u'e' || mark == u'E' || mark == u'd' || mark == u'D') && !ScanExponent()) rest_ = before;
  return true;
}

// False where no exponent follows the letter: that begins a currency then ("5 DA"), or the text is no number.
// Digits behind a thousands delimiter in the exponent continue the number, not the exponent: the platform reads
// "1e3.5" as 15 thousands where "." groups thousands.
bool NumberScanner::ScanExponent() {
  rest_.remove_prefix(1);
  bool negative = false;
  for (;;) {
    if (TakeMinus()) {
      negative = true;
    } else if (!TakePlus() && !TakeThousands()) {
      break;
    }
  }
  if (!IsDecimalDigit(Next())) return false;
  std::int32_t exponent = 0;
  TakeExponentDigits(rest_, exponent);
  digits_.SetExponent(negative ? -exponent : exponent);
  while (TakeThousands()) digits_.TakeDigits(rest_);
  return true;
}

bool NumberScanner::ScanBits() {
  rest_.remove_prefix(1);
  const bool hexadecimal = Take(u'h') || Take(u'H');
  if (!hexadecimal && !Take(u'o') && !Take(u'O')) return false;
  const std::uint32_t base = hexadecimal ? 16 : 8;
  if (HexDigit(Next()) >= base) return false;
  for (; HexDigit(Next()) < base; rest_.remove_prefix(1))
    if (bits_ <= std::numeric_limits<std::uint32_t>::max()) bits_ = bits_ * base + HexDigit(Next());
  return true;
}

// A zero character ends a text, as it does for the platform.
bool NumberScanner::ScanBack() {
  bool closed = false;
  while (!rest_.empty()) {
    if (TakeMinus()) {
      if (minus_) return false;
      negative_ = true;
    } else if (TakePlus()) {
      if (plus_) return false;
    } else if (open_ && !closed && Take(u')')) {
      closed = true;
    } else if (!TakeBlank() && (isBits_ || !(Take(rules_.currency) || TakeThousands()))) {
      break;
    }
  }
  return Next() == u'\0' && open_ == closed;
}

// Up to 32 bits are the bits of a 32-bit integer: &HFFFFFFFF is -1.
template <typename T>
bool NumberScanner::BitsToNumber(T& pValue) const {
  if (bits_ > std::numeric_limits<std::uint32_t>::max()) return false;
  std::int64_t value = static_cast<std::int32_t>(static_cast<std::uint32_t>(bits_));
  if (negative_) value = -value;
  if (value > std::numeric_limits<std::int32_t>::max() && std::numeric_limits<T>::is_integer) return false;
  pValue = static_cast<T>(value);
  return true;
}

template <typename T>
ReadResult Read(std::u16string_view pText, T& pValue, const LocaleRules& pRules) {
  NumberScanner scanner(pText, pRules);
  if (!scanner.Scan()) return ReadResult::NotANumber;
  return scanner.ToNumber(pValue) ? ReadResult::Read : ReadResult::Overflow;
}

}  // namespace

ReadResult ReadNumber(std::u16string_view pText, double& pValue, const LocaleRules& pRules) {
  return Read(pText, pValue, pRules);
}

ReadResult ReadNumber(std::u16string_view pText, std::int32_t& pValue, const LocaleRules& pRules) {
  return Read(pText, pValue, pRules);
}

}  // namespace qzbase::runtime
