// How a user writes numbers, money, dates and times: one plain value per locale.
//
// The value is read from the system once (`UserLocaleRules`) and then handed about; text functions never ask the system
// themselves. Tests and hosts may build or change one freely.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qzbase::os {

struct LocaleRules {
  std::u16string name;  // BCP 47, such as "de-CH"; also chooses the collation. Empty: the invariant rules below.

  // Numbers.
  std::u16string decimal = u".";
  std::u16string thousands = u",";
  std::int32_t firstGroup = 3;      // digits of the group next to the decimal delimiter; 0: no grouping
  std::int32_t furtherGroups = 3;   // digits of every further group; 0: only the first group is cut off
  std::int32_t decimals = 2;        // usual number of decimals
  bool leadingZero = true;          // 0.5 instead of .5
  std::int32_t negativeNumber = 1;  // 0 "(1)", 1 "-1", 2 "- 1", 3 "1-", 4 "1 -"
  std::u16string positiveSign;      // usually empty
  std::u16string negativeSign = u"-";
  std::u16string listSeparator = u",";

  // Money.
  std::u16string currency = u"\u00A4";
  std::u16string monetaryDecimal = u".";
  std::u16string monetaryThousands = u",";
  std::int32_t monetaryFirstGroup = 3;
  std::int32_t monetaryFurtherGroups = 3;
  std::int32_t monetaryDecimals = 2;
  std::int32_t positiveCurrency = 0;  // 0 "$1", 1 "1$", 2 "$ 1", 3 "1 $"
  std::int32_t negativeCurrency = 0;  // 0 "($1)", 1 "-$1", ... 8 "-1 $", ... 15 "(1 $)": the platform's codes

  // Dates and times. The pictures use d, M, y, h, H, m, s, t and text in single quotes (LocalePicture.h); the order of
  // day, month and year is that of the short date. No separator and no delimiter holds a letter or a digit.
  std::u16string dateSeparator = u"/";
  std::u16string timeSeparator = u":";
  std::u16string shortDate = u"MM/dd/yyyy";
  std::u16string longDate = u"dddd, dd MMMM yyyy";
  std::u16string longTime = u"HH:mm:ss";
  std::u16string shortTime = u"HH:mm";
  std::u16string am = u"AM";
  std::u16string pm = u"PM";
  std::int32_t firstDayOfWeek = 6;   // 0 Monday ... 6 Sunday
  std::int32_t firstWeekOfYear = 0;  // 0 the week of January 1st, 1 the first full week, 2 the first week of four days
  std::array<std::u16string, 7> days = {u"Monday", u"Tuesday",  u"Wednesday", u"Thursday",
                                        u"Friday", u"Saturday", u"Sunday"};
  std::array<std::u16string, 7> shortDays = {u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat", u"Sun"};
  std::array<std::u16string, 12> months = {u"January", u"February", u"March",     u"April",   u"May",      u"June",
                                           u"July",    u"August",   u"September", u"October", u"November", u"December"};
  std::array<std::u16string, 12> shortMonths = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                                u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
  // The same beside a day, in languages that say it differently: "listopad", but "28. listopadu". Empty: the same.
  std::array<std::u16string, 12> monthsWithDay;
  std::array<std::u16string, 12> shortMonthsWithDay;

  bool operator==(const LocaleRules&) const = default;
};

// The rules of the user who runs the program, the user's own changes to them included where the system keeps such.
LocaleRules UserLocaleRules();

// The rules of a named locale ("de-DE") as the system ships them; the invariant rules when the system has no such
// locale.
LocaleRules NamedLocaleRules(std::string_view pName);

// The names of all locales that the system has.
std::vector<std::string> LocaleNames();

}  // namespace qzbase::os
