#include "qzbase/os/LocaleRules.h"

#include <cstddef>
#include <iterator>

#include <windows.h>

#include "qzbase/os/LocaleDelimiters.h"
#include "qzbase/os/Utf8.h"

namespace qzbase::os {
namespace {

// Asks for the items of one locale, with or without the user's changes.
class LocaleReader {
 public:
  LocaleReader(const wchar_t* pName, LCTYPE pFlags) : name_(pName), flags_(pFlags) {}

  std::u16string Text(LCTYPE pItem) const {
    wchar_t buffer[256];
    const int length = GetLocaleInfoEx(name_, pItem | flags_, buffer, static_cast<int>(std::size(buffer)));
    return length > 0 ? std::u16string(buffer, buffer + length - 1) : std::u16string();
  }

  std::int32_t Number(LCTYPE pItem) const {
    DWORD value = 0;
    constexpr int size = sizeof value / sizeof(wchar_t);
    if (GetLocaleInfoEx(name_, pItem | flags_ | LOCALE_RETURN_NUMBER, reinterpret_cast<wchar_t*>(&value), size) == 0)
      return 0;
    return static_cast<std::int32_t>(value);
  }

  // "3;0": groups of three throughout; "3;2;0": two from the second group on; "3": one group only.
  void Groups(LCTYPE pItem, std::int32_t& pFirst, std::int32_t& pFurther) const {
    const std::u16string text = Text(pItem);
    const auto digit = [&](std::size_t pAt) { return pAt < text.size() ? text[pAt] - u'0' : 0; };
    pFirst = digit(0);
    pFurther = text.size() < 3 ? 0 : digit(2) == 0 ? pFirst : digit(2);
  }

  // The items of the names follow one another.
  template <std::size_t pCount>
  void Names(LCTYPE pFirstItem, std::array<std::u16string, pCount>& pNames) const {
    for (std::size_t i = 0; i < pCount; ++i) pNames[i] = Text(pFirstItem + static_cast<LCTYPE>(i));
  }

 private:
  const wchar_t* name_;
  LCTYPE flags_;
};

void FillNumbers(LocaleRules& pRules, const LocaleReader& pReader) {
  pRules.decimal = pReader.Text(LOCALE_SDECIMAL);
  pRules.thousands = pReader.Text(LOCALE_STHOUSAND);
  pReader.Groups(LOCALE_SGROUPING, pRules.firstGroup, pRules.furtherGroups);
  pRules.decimals = pReader.Number(LOCALE_IDIGITS);
  pRules.leadingZero = pReader.Number(LOCALE_ILZERO) != 0;
  pRules.negativeNumber = pReader.Number(LOCALE_INEGNUMBER);
  pRules.positiveSign = pReader.Text(LOCALE_SPOSITIVESIGN);
  pRules.negativeSign = pReader.Text(LOCALE_SNEGATIVESIGN);
  pRules.listSeparator = pReader.Text(LOCALE_SLIST);
}

void FillMoney(LocaleRules& pRules, const LocaleReader& pReader) {
  pRules.currency = pReader.Text(LOCALE_SCURRENCY);
  pRules.monetaryDecimal = pReader.Text(LOCALE_SMONDECIMALSEP);
  pRules.monetaryThousands = pReader.Text(LOCALE_SMONTHOUSANDSEP);
  pReader.Groups(LOCALE_SMONGROUPING, pRules.monetaryFirstGroup, pRules.monetaryFurtherGroups);
  pRules.monetaryDecimals = pReader.Number(LOCALE_ICURRDIGITS);
  pRules.positiveCurrency = pReader.Number(LOCALE_ICURRENCY);
  pRules.negativeCurrency = pReader.Number(LOCALE_INEGCURR);
}

void FillDates(LocaleRules& pRules, const LocaleReader& pReader) {
  pRules.shortDate = pReader.Text(LOCALE_SSHORTDATE);
  pRules.longDate = pReader.Text(LOCALE_SLONGDATE);
  pRules.longTime = pReader.Text(LOCALE_STIMEFORMAT);
  pRules.shortTime = pReader.Text(LOCALE_SSHORTTIME);
  pRules.am = pReader.Text(LOCALE_S1159);
  pRules.pm = pReader.Text(LOCALE_S2359);
  pRules.firstDayOfWeek = pReader.Number(LOCALE_IFIRSTDAYOFWEEK);
  pRules.firstWeekOfYear = pReader.Number(LOCALE_IFIRSTWEEKOFYEAR);
  pReader.Names(LOCALE_SDAYNAME1, pRules.days);
  pReader.Names(LOCALE_SABBREVDAYNAME1, pRules.shortDays);
  pReader.Names(LOCALE_SMONTHNAME1, pRules.months);
  pReader.Names(LOCALE_SABBREVMONTHNAME1, pRules.shortMonths);
  pReader.Names(LOCALE_SMONTHNAME1 | LOCALE_RETURN_GENITIVE_NAMES, pRules.monthsWithDay);
  pReader.Names(LOCALE_SABBREVMONTHNAME1 | LOCALE_RETURN_GENITIVE_NAMES, pRules.shortMonthsWithDay);
  SettleMonthNames(pRules);
}

LocaleRules ReadRules(const wchar_t* pName, LCTYPE pFlags) {
  const LocaleReader reader(pName, pFlags);
  LocaleRules rules;
  rules.name = reader.Text(LOCALE_SNAME);
  FillNumbers(rules, reader);
  FillMoney(rules, reader);
  FillDates(rules, reader);
  SettleDelimiters(rules);
  return rules;
}

BOOL CALLBACK AddName(LPWSTR pName, DWORD, LPARAM pNames) {
  const std::u16string name(pName, pName + lstrlenW(pName));
  if (!name.empty()) reinterpret_cast<std::vector<std::string>*>(pNames)->push_back(ToUtf8(name));
  return TRUE;
}

}  // namespace

LocaleRules UserLocaleRules() {
  return ReadRules(LOCALE_NAME_USER_DEFAULT, 0);
}

LocaleRules NamedLocaleRules(std::string_view pName) {
  // Names are ASCII; the empty one is the system's invariant locale, whose place the rules of the header take.
  const std::wstring name(pName.begin(), pName.end());
  if (name.empty() || !IsValidLocaleName(name.c_str())) return {};
  return ReadRules(name.c_str(), LOCALE_NOUSEROVERRIDE);
}

std::vector<std::string> LocaleNames() {
  std::vector<std::string> names;
  EnumSystemLocalesEx(AddName, LOCALE_ALL, reinterpret_cast<LPARAM>(&names), nullptr);
  return names;
}

}  // namespace qzbase::os
