// Numbers in the locale's own style: FormatNumber with a `NumberStyle`.
#include <algorithm>
#include <cmath>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/DecimalDigits.h"
#include "qzbase/runtime/NumberPattern.h"
#include "qzbase/runtime/NumberText.h"

namespace qzbase::runtime {
namespace {

constexpr std::int32_t kYes = -1;
constexpr std::int32_t kLocaleSetting = -2;
constexpr std::int32_t kMaxDecimals = 9;

// The platform's codes of where signs and currency stand: "n" is the number, "$" the currency, "-" the negative sign.
constexpr std::u16string_view kPlain = u"n";
constexpr std::u16string_view kNegativeNumber[] = {u"(n)", u"-n", u"- n", u"n-", u"n -"};
constexpr std::u16string_view kPositiveCurrency[] = {u"$n", u"n$", u"$ n", u"n $"};
constexpr std::u16string_view kNegativeCurrency[] = {u"($n)", u"-$n",  u"$-n",   u"$n-",  u"(n$)", u"-n$",
                                                     u"n-$",  u"n$-",  u"-n $",  u"-$ n", u"n $-", u"$ n-",
                                                     u"$ -n", u"n- $", u"($ n)", u"(n $)"};

// Negative money with the currency where positive money has it.
constexpr std::u16string_view kCurrencyInParentheses[] = {u"($n)", u"(n$)", u"($ n)", u"(n $)"};
constexpr std::u16string_view kCurrencyWithMinus[] = {u"-$n", u"-n$", u"-$ n", u"-n $"};

template <std::size_t Size>
std::u16string_view Choose(const std::u16string_view (&pLayouts)[Size], std::int32_t pCode) noexcept {
  return pLayouts[pCode >= 0 && pCode < static_cast<std::int32_t>(Size) ? static_cast<std::size_t>(pCode) : 0];
}

bool HasParentheses(std::u16string_view pLayout) noexcept {
  return pLayout.front() == u'(';
}

bool Decide(std::int32_t pOption, bool pLocaleSetting) noexcept {
  return pOption == kLocaleSetting ? pLocaleSetting : pOption == kYes;
}

std::u16string_view NegativeLayout(const NumberStyle& pStyle, const LocaleRules& pRules) noexcept {
  const bool money = pStyle.kind == NumberStyle::Kind::Currency;
  const std::u16string_view own =
      money ? Choose(kNegativeCurrency, pRules.negativeCurrency) : Choose(kNegativeNumber, pRules.negativeNumber);
  const bool parentheses = Decide(pStyle.parentheses, HasParentheses(own));
  if (parentheses == HasParentheses(own)) return own;
  if (money) return Choose(parentheses ? kCurrencyInParentheses : kCurrencyWithMinus, pRules.positiveCurrency);
  return kNegativeNumber[parentheses ? 0 : 1];
}

// How the digits themselves are written.
struct Figures {
  std::int32_t decimals;
  bool leadingZero;
  std::int32_t firstGroup;  // 0: no grouping
  std::int32_t furtherGroups;
  std::u16string_view decimal;
  std::u16string_view thousands;
};

Figures FiguresOf(const NumberStyle& pStyle, const LocaleRules& pRules) noexcept {
  const bool money = pStyle.kind == NumberStyle::Kind::Currency;
  const std::int32_t localeDecimals = money ? pRules.monetaryDecimals : pRules.decimals;
  const bool grouping = Decide(pStyle.grouping, true);
  const std::int32_t firstGroup = money ? pRules.monetaryFirstGroup : pRules.firstGroup;
  return {.decimals = pStyle.digits < 0 ? localeDecimals : pStyle.digits,
          .leadingZero = Decide(pStyle.leadingZero, pRules.leadingZero),
          .firstGroup = grouping ? firstGroup : 0,
          .furtherGroups = money ? pRules.monetaryFurtherGroups : pRules.furtherGroups,
          .decimal = money ? pRules.monetaryDecimal : pRules.decimal,
          .thousands = money ? pRules.monetaryThousands : pRules.thousands};
}

// Whether a group ends left of the digit of 10^pPower.
bool IsGroupEnd(std::int32_t pPower, const Figures& pFigures) noexcept {
  if (pFigures.firstGroup <= 0 || pPower < pFigures.firstGroup) return false;
  const std::int32_t further = pPower - pFigures.firstGroup;
  return further == 0 || (pFigures.furtherGroups > 0 && further % pFigures.furtherGroups == 0);
}

void AppendFigures(std::u16string& pText, const DecimalDigits& pDigits, const Figures& pFigures) {
  const std::int32_t integerDigits = std::max(pDigits.Point(), pFigures.leadingZero ? 1 : 0);
  for (std::int32_t power = integerDigits - 1; power >= 0; --power) {
    pText += static_cast<char16_t>(pDigits.DigitAt(power));
    if (IsGroupEnd(power, pFigures)) pText += pFigures.thousands;
  }
  if (pFigures.decimals > 0) pText += pFigures.decimal;
  for (std::int32_t decimal = 1; decimal <= pFigures.decimals; ++decimal)
    pText += static_cast<char16_t>(pDigits.DigitAt(-decimal));
}

}  // namespace

std::u16string FormatNumber(double pValue, const NumberStyle& pStyle, const LocaleRules& pRules) {
  if (!std::isfinite(pValue)) return NumberText(pValue, pRules);
  const Figures figures = FiguresOf(pStyle, pRules);
  if (figures.decimals > kMaxDecimals) Raise(RuntimeError::InvalidArgument);

  DecimalDigits digits(pValue);
  if (pStyle.kind == NumberStyle::Kind::Percent) digits.Scale(2);
  digits.RoundHalfAway(figures.decimals);
  std::u16string_view layout = kPlain;
  if (pValue < 0)
    layout = NegativeLayout(pStyle, pRules);
  else if (pStyle.kind == NumberStyle::Kind::Currency)
    layout = Choose(kPositiveCurrency, pRules.positiveCurrency);

  std::u16string text;
  for (const char16_t mark : layout) {
    if (mark == u'n')
      AppendFigures(text, digits, figures);
    else if (mark == u'$')
      text += pRules.currency;
    else if (mark == u'-')
      text += pRules.negativeSign;
    else
      text += mark;
  }
  if (pStyle.kind == NumberStyle::Kind::Percent) text += u'%';
  return text;
}

}  // namespace qzbase::runtime
