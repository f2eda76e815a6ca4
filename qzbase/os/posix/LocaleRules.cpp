// Implementation notes. The library's locale data and the platform whose texts are the measure come from one source but
// differ in form; the differences are bridged by rules that hold for all locales:
// - money is written as in accounts (negative amounts in parentheses where the locale does so);
// - the short date has no padding beyond the locale's habit and a year of four digits;
// - narrow no-break spaces are plain no-break spaces between digits and blanks elsewhere; the minus is the hyphen;
// - list items are set apart by a comma where the comma groups thousands, else by a semicolon.
#include "qzbase/os/LocaleRules.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <iterator>

#include <unicode/uloc.h>

#include "qzbase/os/LocaleDelimiters.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/os/posix/IcuHandle.h"

namespace qzbase::os {
namespace {

constexpr char16_t kNoBreakSpace = 0x00A0;
constexpr char16_t kNarrowNoBreakSpace = 0x202F;
constexpr char16_t kMinusSign = 0x2212;

// Calls one of the library's functions that fill a buffer; empty when it fails.
template <class Fill>
std::u16string TextOf(Fill pFill) {
  char16_t buffer[256];
  UErrorCode status = U_ZERO_ERROR;
  const std::int32_t length = pFill(buffer, static_cast<std::int32_t>(std::size(buffer)), &status);
  if (U_FAILURE(status) || length > static_cast<std::int32_t>(std::size(buffer))) return {};
  return {buffer, static_cast<std::size_t>(length)};
}

std::u16string Replaced(std::u16string pText, char16_t pOld, char16_t pNew) {
  std::replace(pText.begin(), pText.end(), pOld, pNew);
  return pText;
}

// ---- Numbers and money

std::u16string Symbol(const NumberFormatHandle& pFormat, UNumberFormatSymbol pSymbol) {
  const std::u16string text = TextOf([&](char16_t* pBuffer, std::int32_t pSize, UErrorCode* pStatus) {
    return unum_getSymbol(pFormat.get(), pSymbol, pBuffer, pSize, pStatus);
  });
  return Replaced(Replaced(text, kNarrowNoBreakSpace, kNoBreakSpace), kMinusSign, u'-');
}

void FillGroups(const NumberFormatHandle& pFormat, std::int32_t& pFirst, std::int32_t& pFurther) {
  pFirst = std::max(unum_getAttribute(pFormat.get(), UNUM_GROUPING_SIZE), 0);
  const std::int32_t further = unum_getAttribute(pFormat.get(), UNUM_SECONDARY_GROUPING_SIZE);
  pFurther = further > 0 ? further : pFirst;
}

// A pattern brought down to the marks that decide its code: "(" ")" "-" "$" "1" and single blanks.
std::u16string Skeleton(std::u16string_view pPattern) {
  std::u16string marks;
  for (const char16_t c : pPattern) {
    char16_t mark = 0;
    if (c == u'(' || c == u')' || c == u'-') mark = c;
    if (c == u'\u00A4') mark = u'$';
    if (c == u'#' || c == u'0') mark = u'1';
    if (c == u' ' || c == kNoBreakSpace) mark = u' ';
    if (mark != 0 && (marks.empty() || marks.back() != mark)) marks += mark;
  }
  return marks;
}

constexpr std::u16string_view kNegativeNumbers[] = {u"(1)", u"-1", u"- 1", u"1-", u"1 -"};
constexpr std::u16string_view kPositiveCurrencies[] = {u"$1", u"1$", u"$ 1", u"1 $"};
constexpr std::u16string_view kNegativeCurrencies[] = {u"($1)", u"-$1",  u"$-1",   u"$1-",  u"(1$)", u"-1$",
                                                       u"1-$",  u"1$-",  u"-1 $",  u"-$ 1", u"1 $-", u"$ 1-",
                                                       u"$ -1", u"1- $", u"($ 1)", u"(1 $)"};

template <std::size_t pCount>
std::int32_t CodeOf(std::u16string_view pForm, const std::u16string_view (&pForms)[pCount], std::int32_t pOtherwise) {
  const auto found = std::find(std::begin(pForms), std::end(pForms), pForm);
  return found == std::end(pForms) ? pOtherwise : static_cast<std::int32_t>(found - std::begin(pForms));
}

// The positive and the negative form of a pattern; a pattern without a negative form puts a minus in front.
struct SignedForms {
  std::u16string positive;
  std::u16string negative;
};

SignedForms FormsOf(const NumberFormatHandle& pFormat) {
  const std::u16string pattern = TextOf([&](char16_t* pBuffer, std::int32_t pSize, UErrorCode* pStatus) {
    return unum_toPattern(pFormat.get(), false, pBuffer, pSize, pStatus);
  });
  const std::size_t semicolon = pattern.find(u';');
  SignedForms forms;
  forms.positive = Skeleton(std::u16string_view(pattern).substr(0, semicolon));
  forms.negative = semicolon == std::u16string::npos ? u"-" + forms.positive
                                                     : Skeleton(std::u16string_view(pattern).substr(semicolon + 1));
  return forms;
}

NumberFormatHandle OpenFormat(UNumberFormatStyle pStyle, const char* pLocale) {
  UErrorCode status = U_ZERO_ERROR;
  return NumberFormatHandle(unum_open(pStyle, nullptr, 0, pLocale, nullptr, &status));
}

void FillNumbers(LocaleRules& pRules, const char* pLocale) {
  const NumberFormatHandle format = OpenFormat(UNUM_DECIMAL, pLocale);
  if (!format) return;
  pRules.decimal = Symbol(format, UNUM_DECIMAL_SEPARATOR_SYMBOL);
  pRules.thousands = Symbol(format, UNUM_GROUPING_SEPARATOR_SYMBOL);
  pRules.negativeSign = Symbol(format, UNUM_MINUS_SIGN_SYMBOL);
  FillGroups(format, pRules.firstGroup, pRules.furtherGroups);
  pRules.negativeNumber = CodeOf(FormsOf(format).negative, kNegativeNumbers, 1);
  pRules.listSeparator = pRules.thousands == u"," ? u"," : u";";
}

void FillMoney(LocaleRules& pRules, const char* pLocale) {
  const NumberFormatHandle format = OpenFormat(UNUM_CURRENCY_ACCOUNTING, pLocale);
  if (!format) return;
  pRules.currency = Symbol(format, UNUM_CURRENCY_SYMBOL);
  pRules.monetaryDecimal = Symbol(format, UNUM_MONETARY_SEPARATOR_SYMBOL);
  pRules.monetaryThousands = Symbol(format, UNUM_MONETARY_GROUPING_SEPARATOR_SYMBOL);
  FillGroups(format, pRules.monetaryFirstGroup, pRules.monetaryFurtherGroups);
  pRules.monetaryDecimals = unum_getAttribute(format.get(), UNUM_MIN_FRACTION_DIGITS);
  const SignedForms forms = FormsOf(format);
  pRules.positiveCurrency = CodeOf(forms.positive, kPositiveCurrencies, 2);
  pRules.negativeCurrency = CodeOf(forms.negative, kNegativeCurrencies, 9);
}

// ---- Dates and times

struct PatternLetter {
  char16_t library;
  std::u16string_view once;
  std::u16string_view twice;  // also the piece that repeats for further letters
};

// A letter that stands alone, and how it reads here. A year of one letter is the full year.
constexpr PatternLetter kPatternLetters[] = {
    {u'y', u"yyyy", u"yy"}, {u'M', u"M", u"MM"},  {u'L', u"M", u"MM"},  {u'd', u"d", u"dd"},    {u'h', u"h", u"hh"},
    {u'K', u"h", u"hh"},    {u'H', u"H", u"HH"},  {u'k', u"H", u"HH"},  {u'm', u"m", u"mm"},    {u's', u"s", u"ss"},
    {u'a', u"tt", u"tt"},   {u'b', u"tt", u"tt"}, {u'B', u"tt", u"tt"}, {u'E', u"ddd", u"ddd"}, {u'c', u"ddd", u"ddd"},
};

std::u16string PatternPiece(char16_t pLetter, std::size_t pCount) {
  const auto row = std::find_if(std::begin(kPatternLetters), std::end(kPatternLetters),
                                [&](const PatternLetter& r) { return r.library == pLetter; });
  if (row == std::end(kPatternLetters)) return {};  // eras and time zones have no place here
  if (pCount <= 2) return std::u16string(pCount == 1 ? row->once : row->twice);
  if (row->once == u"tt" || pLetter == u'y') return std::u16string(row->once);
  return std::u16string(pCount == 3 ? 3 : 4, row->once.front());
}

// A pattern of the library in the notation of `LocaleRules`. Text in quotes stays as it is.
std::u16string Translated(std::u16string_view pPattern) {
  std::u16string result;
  bool quoted = false;
  for (std::size_t i = 0; i < pPattern.size();) {
    const char16_t c = pPattern[i];
    const std::size_t run = std::min(pPattern.find_first_not_of(c, i), pPattern.size()) - i;
    if (c == u'\'') quoted = quoted != (run % 2 != 0);
    const bool isLetter = (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
    if (isLetter && !quoted)
      result += PatternPiece(c, run);
    else
      result.append(run, c == kNarrowNoBreakSpace || c == kNoBreakSpace ? u' ' : c);
    i += run;
  }
  while (!result.empty() && result.back() == u' ') result.pop_back();
  return result;
}

std::u16string StylePattern(UDateFormatStyle pTime, UDateFormatStyle pDate, const char* pLocale) {
  UErrorCode status = U_ZERO_ERROR;
  const DateFormatHandle format(udat_open(pTime, pDate, pLocale, nullptr, 0, nullptr, 0, &status));
  if (!format) return {};
  return Translated(TextOf([&](char16_t* pBuffer, std::int32_t pSize, UErrorCode* pStatus) {
    return udat_toPattern(format.get(), false, pBuffer, pSize, pStatus);
  }));
}

std::u16string ShortDatePattern(const char* pLocale) {
  UErrorCode status = U_ZERO_ERROR;
  const DatePatternsHandle patterns(udatpg_open(pLocale, &status));
  if (!patterns) return {};
  return Translated(TextOf([&](char16_t* pBuffer, std::int32_t pSize, UErrorCode* pStatus) {
    return udatpg_getBestPattern(patterns.get(), u"yMd", 3, pBuffer, pSize, pStatus);
  }));
}

// Fills `pNames` from a list of the library, beginning with entry `pFirst` and going round.
template <std::size_t pCount>
void FillNames(std::array<std::u16string, pCount>& pNames, const DateFormatHandle& pFormat, UDateFormatSymbolType pType,
               std::int32_t pFirst, std::int32_t pBase) {
  for (std::size_t i = 0; i < pCount; ++i) {
    const auto index = static_cast<std::int32_t>((i + static_cast<std::size_t>(pFirst)) % pCount) + pBase;
    pNames[i] = TextOf([&](char16_t* pBuffer, std::int32_t pSize, UErrorCode* pStatus) {
      return udat_getSymbols(pFormat.get(), pType, index, pBuffer, pSize, pStatus);
    });
  }
}

void FillAllNames(LocaleRules& pRules, const char* pLocale) {
  UErrorCode status = U_ZERO_ERROR;
  const DateFormatHandle format(udat_open(UDAT_SHORT, UDAT_SHORT, pLocale, nullptr, 0, nullptr, 0, &status));
  if (!format) return;
  // The library counts days from 1 = Sunday, months from 0 = January.
  FillNames(pRules.days, format, UDAT_STANDALONE_WEEKDAYS, 1, 1);
  FillNames(pRules.shortDays, format, UDAT_SHORT_WEEKDAYS, 1, 1);
  FillNames(pRules.months, format, UDAT_STANDALONE_MONTHS, 0, 0);
  FillNames(pRules.shortMonths, format, UDAT_STANDALONE_SHORT_MONTHS, 0, 0);
  FillNames(pRules.monthsWithDay, format, UDAT_MONTHS, 0, 0);
  FillNames(pRules.shortMonthsWithDay, format, UDAT_SHORT_MONTHS, 0, 0);
  SettleMonthNames(pRules);
  std::array<std::u16string, 2> halves;
  FillNames(halves, format, UDAT_AM_PMS, 0, 0);
  pRules.am = halves[0];
  pRules.pm = halves[1];
}

void FillWeek(LocaleRules& pRules, const char* pLocale) {
  UErrorCode status = U_ZERO_ERROR;
  const CalendarHandle calendar(ucal_open(nullptr, 0, pLocale, UCAL_GREGORIAN, &status));
  if (!calendar) return;
  pRules.firstDayOfWeek = (ucal_getAttribute(calendar.get(), UCAL_FIRST_DAY_OF_WEEK) + 5) % 7;
  const std::int32_t minimalDays = ucal_getAttribute(calendar.get(), UCAL_MINIMAL_DAYS_IN_FIRST_WEEK);
  pRules.firstWeekOfYear = minimalDays >= 7 ? 1 : minimalDays >= 4 ? 2 : 0;
}

void FillDates(LocaleRules& pRules, const char* pLocale) {
  pRules.shortDate = ShortDatePattern(pLocale);
  pRules.longDate = StylePattern(UDAT_NONE, UDAT_FULL, pLocale);
  pRules.longTime = StylePattern(UDAT_MEDIUM, UDAT_NONE, pLocale);
  pRules.shortTime = StylePattern(UDAT_SHORT, UDAT_NONE, pLocale);
  FillAllNames(pRules, pLocale);
  FillWeek(pRules, pLocale);
}

// ---- Locales by name

// Whether the library knows the locale's language; for others it would hand out those of the process.
bool IsKnown(const char* pLocale) {
  UErrorCode status = U_ZERO_ERROR;
  const ResourceHandle bundle(ures_open(nullptr, pLocale, &status));
  return bundle && status != U_USING_DEFAULT_WARNING;
}

// Patterns and digits are those of the Gregorian calendar and of ASCII, whatever is customary. The name may carry
// keywords of its own.
std::string WithCommonForms(const std::string& pLocale) {
  if (pLocale.empty()) return {};
  return pLocale + (pLocale.find('@') == std::string::npos ? '@' : ';') + "calendar=gregorian;numbers=latn";
}

std::u16string LanguageTag(const char* pLocale) {
  char tag[ULOC_FULLNAME_CAPACITY] = "";
  UErrorCode status = U_ZERO_ERROR;
  uloc_toLanguageTag(pLocale, tag, ULOC_FULLNAME_CAPACITY, false, &status);
  return FromUtf8(tag);
}

// The library's name of the locale that an environment variable names ("de_CH.UTF-8"); empty for "C" and unknown ones.
std::string LocaleOfVariable(std::string_view pValue) {
  const std::string name(pValue.substr(0, pValue.find_first_of(".@")));
  if (name.empty() || name == "C" || name == "POSIX") return {};
  char locale[ULOC_FULLNAME_CAPACITY] = "";
  UErrorCode status = U_ZERO_ERROR;
  uloc_getName(name.c_str(), locale, ULOC_FULLNAME_CAPACITY, &status);
  return U_SUCCESS(status) && IsKnown(locale) ? locale : "";
}

// LC_ALL rules over the category's own variable, and that one over LANG; an empty variable counts as unset.
std::string UserLocale(const char* pCategory) {
  for (const char* variable : {"LC_ALL", pCategory, "LANG"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return LocaleOfVariable(value);
  }
  return {};
}

}  // namespace

LocaleRules UserLocaleRules() {
  LocaleRules rules;
  if (const std::string locale = UserLocale("LC_COLLATE"); !locale.empty()) rules.name = LanguageTag(locale.c_str());
  if (const std::string locale = WithCommonForms(UserLocale("LC_NUMERIC")); !locale.empty())
    FillNumbers(rules, locale.c_str());
  if (const std::string locale = WithCommonForms(UserLocale("LC_MONETARY")); !locale.empty())
    FillMoney(rules, locale.c_str());
  if (const std::string locale = WithCommonForms(UserLocale("LC_TIME")); !locale.empty())
    FillDates(rules, locale.c_str());
  SettleDelimiters(rules);
  return rules;
}

LocaleRules NamedLocaleRules(std::string_view pName) {
  LocaleRules rules;
  char name[ULOC_FULLNAME_CAPACITY] = "";
  std::int32_t parsed = 0;
  UErrorCode status = U_ZERO_ERROR;
  uloc_forLanguageTag(std::string(pName).c_str(), name, ULOC_FULLNAME_CAPACITY, &parsed, &status);
  if (U_FAILURE(status) || name[0] == '\0' || !IsKnown(name)) return rules;
  const std::string locale = WithCommonForms(name);
  rules.name = LanguageTag(name);
  FillNumbers(rules, locale.c_str());
  FillMoney(rules, locale.c_str());
  FillDates(rules, locale.c_str());
  SettleDelimiters(rules);
  return rules;
}

std::vector<std::string> LocaleNames() {
  std::vector<std::string> names(static_cast<std::size_t>(uloc_countAvailable()));
  for (std::size_t i = 0; i < names.size(); ++i)
    names[i] = ToUtf8(LanguageTag(uloc_getAvailable(static_cast<std::int32_t>(i))));
  return names;
}

}  // namespace qzbase::os
