#include <cstdio>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

#include "qzbase/runtime/DatePattern.h"
#include "qzbase/runtime/DateReader.h"
#include "qzbase/runtime/DateText.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {
namespace {

using namespace qzbase::runtime;

std::string Iso(const DateParts& pParts) {
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d", pParts.year, pParts.month, pParts.day, pParts.hour,
                pParts.minute, pParts.second);
  return text;
}

// ---- The calendar.

TEST(DateTest, TheDaysOfTheCalendarSplitAndComeBack) {
  DateParts expected = {.year = 100, .month = 1, .day = 1};
  std::int32_t dayOfYear = 1;
  for (std::int32_t day = 0; day < kLastDate - kFirstDate; ++day) {
    // All first and last days of months, and of the days between one in 31, which are other ones in every month.
    const bool isLast = !IsValidDay(expected.year, expected.month, expected.day + 1);
    if (expected.day == 1 || isLast || day % 31 == 0) {
      const DateParts parts = SplitDate({kFirstDate + day});
      ASSERT_TRUE(parts == expected) << Iso(parts) << " is no " << Iso(expected);
      ASSERT_EQ(MakeDate(parts).days, kFirstDate + day);
      ASSERT_EQ(DayOfYear(parts), dayOfYear) << Iso(parts);
      ASSERT_EQ(DayOfWeek(parts), (day + 4) % 7) << Iso(parts);
    }
    ++dayOfYear;
    ++expected.day;
    if (!isLast) continue;
    expected.day = 1;
    if (++expected.month <= 12) continue;
    expected.month = dayOfYear = 1;
    ++expected.year;
  }
  EXPECT_EQ(expected.year, 10000);
}

TEST(DateTest, TheSecondsOfADayComeBack) {
  for (const std::int32_t year : {2031, 101})
    for (std::int32_t second = 0; second < 86400; second += 7) {
      const DateParts parts = {
          .year = year, .month = 2, .day = 3, .hour = second / 3600, .minute = second / 60 % 60, .second = second % 60};
      ASSERT_TRUE(SplitDate(MakeDate(parts)) == parts) << Iso(parts);
    }
}

TEST(DateTest, KnowsItsEnds) {
  const std::pair<double, const char*> rows[] = {{-1.99999999, "1899-12-30T00:00:00"},
                                                 {-657434.5, "0100-01-01T12:00:00"},
                                                 {0.5 / 86400, "1899-12-30T00:00:01"},
                                                 {48180 + 4.5 / 86400, "2031-11-28T00:00:05"}};  // a little less
  for (const auto& [days, expected] : rows) EXPECT_EQ(Iso(SplitDate({days})), expected);
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double days : {-657435.0, 2958466.0, 2958465.999999, 1e300, -infinity, infinity, -(infinity - infinity)}) {
    EXPECT_FALSE(IsInCalendar({days})) << days;
    EXPECT_EQ(TextOrError([&] { return Iso(SplitDate({days})); }), "error 5") << days;
  }
  const std::tuple<std::int32_t, std::int32_t, std::int32_t> none[] = {{99, 12, 31},  {10000, 1, 1},  {2023, 0, 1},
                                                                       {2023, 13, 1}, {2023, 257, 1}, {2023, 1, 0}};
  for (const auto& [year, month, day] : none) EXPECT_FALSE(IsValidDay(year, month, day)) << year << ' ' << month;
}

// ---- Texts and patterns.

std::string Answer(Date pDate, std::u16string_view pPattern, std::string_view pLocale, WeekRule pWeek) {
  return TextOrError([&] { return ToUtf8(FormatDate(pDate, pPattern, TestLocale(pLocale), pWeek)); });
}

// Patterns and names that make a number of the date are the business of `Format`.
bool IsNumberPattern(const std::string& pPattern) {
  for (const char* name : {"General Number", "Standard", "Yes/No"})
    if (pPattern == name) return true;
  return !pPattern.empty() && pPattern.find_first_not_of("0#.,%") == std::string::npos;
}

TEST(DateTest, TextsOfTheTable) {
  CheckTable("date_format.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    const std::string& pattern = pRow["pattern"];
    const Date date = {pRow.DoubleFromBits("value_bits")};
    if (pRow["api"] == "VarBstrFromDate") {
      const DateTextParts parts = pattern == "VAR_TIMEVALUEONLY"   ? DateTextParts::TimeOnly
                                  : pattern == "VAR_DATEVALUEONLY" ? DateTextParts::DateOnly
                                                                   : DateTextParts::Both;
      return Comparison{pRow.Expected("text"),
                        TextOrError([&] { return ToUtf8(DateText(date, TestLocale(pRow["locale"]), parts)); })};
    }
    if (IsNumberPattern(pattern)) return {};
    const WeekRule week = {std::stoi(pRow["first_day"]), std::stoi(pRow["first_week"])};
    return Comparison{pRow.Expected("text"), Answer(date, pRow.Text("pattern"), pRow["locale"], week)};
  });
}

TEST(DateTest, TextFollowsThePicturesOfTheLocale) {
  LocaleRules rules = TestLocale("sv-SE");
  rules.shortDate = u"y yy yyyy M MM MMM MMMM d dd ddd dddd 'd''M' 'open";
  rules.longTime = u"H HH h hh m mm s ss t tt ttt'";
  const Date date = MakeDate({.year = 2004, .month = 3, .day = 8, .hour = 20, .minute = 5, .second = 7});
  EXPECT_EQ(ToUtf8(DateText(date, rules)),
            "4 04 2004 3 03 mars mars 8 08 mån måndag d'M open 20 20 8 08 5 05 7 07 e em em");
}

// The system's own names: beside a day, and alone, which is read back too.
TEST(DateTest, MonthsBesideADay) {
  for (const auto& [locale, name] : {std::pair("cs-CZ", u"28. listopadu"), {"ru-RU", u"28. ноября"}}) {
    const LocaleRules rules = os::NamedLocaleRules(locale);
    EXPECT_EQ(ToUtf8(FormatDate({48180}, u"d. mmmm", rules)), ToUtf8(name));
    EXPECT_EQ(FormatDate({48180}, u"dddd mmmm yyyy", rules), rules.days[4] + u" " + rules.months[10] + u" 2031");
    Date date;
    EXPECT_TRUE(ReadDate(FormatDate({48180}, u"mmmm yyyy", rules), date, rules) && date == Date{48153}) << locale;
  }
}

// Weeks at both ends of years that begin on a Thursday, Friday and Saturday.
TEST(DateTest, Weeks) {
  const std::tuple<DateParts, WeekRule, const char*> rows[] = {
      {{.year = 2027, .month = 1, .day = 3}, {1, 2}, "7 53"},
      {{.year = 2027, .month = 1, .day = 4}, {1, 2}, "1 1"},
      {{.year = 2024, .month = 12, .day = 29}, {1, 2}, "7 52"},
      {{.year = 2024, .month = 12, .day = 30}, {1, 2}, "1 1"},
      {{.year = 2027, .month = 1, .day = 3}, {1, 3}, "7 52"},
      {{.year = 2024, .month = 12, .day = 31}, {1, 3}, "2 53"},
      {{.year = 2000, .month = 12, .day = 31}, {7, 1}, "1 54"},
      {{.year = 100, .month = 1, .day = 1}, {1, 3}, "5 52"},
      {{.year = 9999, .month = 12, .day = 31}, {1, 2}, "5 52"}};
  for (const auto& [day, rule, expected] : rows)
    EXPECT_EQ(Answer(MakeDate(day), u"w ww", "en-US", rule), expected) << Iso(day);
  for (const auto& [pattern, expected] :
       {std::pair(u"h;am/pm", "0"), {u";d", ""}, {u"yyyyy", "error 5"}, {u"am/pm ampm", "error 5"}})
    EXPECT_EQ(Answer({1}, pattern, "en-US", {}), expected) << ToUtf8(pattern);
  for (const WeekRule& none : {WeekRule{8, 1}, WeekRule{1, 4}}) EXPECT_EQ(Answer({1}, u"w", "en-US", none), "error 5");
}

TEST(DateTest, TellsDatePatterns) {
  for (const char16_t* pattern : {u"d", u"x Y", u"Short Date", u"-h", u"/", u"am/pm", u"d0", u"\"0\"d", u"\\0d"})
    EXPECT_TRUE(IsDatePattern(pattern)) << ToUtf8(pattern);
  for (const char16_t* pattern : {u"", u"0", u"0 d", u"#:00", u"\"d\"0", u"\\d0", u"@d", u"x", u"t", u"\"d"})
    EXPECT_FALSE(IsDatePattern(pattern)) << ToUtf8(pattern);
}

// ---- The reader.

// "2031-11-28T20:15:42", or "no date".
std::string Read(std::u16string_view pText, const LocaleRules& pRules) {
  Date date = {12345.5};
  if (ReadDate(pText, date, pRules, [] { return 2026; })) return Iso(SplitDate(date));
  return date == Date{12345.5} ? "no date" : "spoiled";
}

TEST(DateReader, TextsOfTheTable) {
  CheckTable("parse_date.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    const std::string& answer = pRow["documented_iso"].empty() ? pRow["iso"] : pRow["documented_iso"];
    return Comparison{pRow["hr"] == "00000000" ? answer : "no date",
                      Read(pRow.Text("text"), TestLocale(pRow["locale"]))};
  });
  EXPECT_EQ(Read(std::u16string_view(u"1/2\0/3", 6), TestLocale("en-US")), "no date");
}

// Where one mark separates dates and times, the pictures say what a text is. Words and blanks of the pictures may be
// left out.
TEST(DateReader, PicturesOfTheLocale) {
  LocaleRules dots = TestLocale("de-DE");
  dots.longTime = u"H.mm.ss";
  dots.timeSeparator = u".";
  LocaleRules words = TestLocale("fr-FR");
  words.shortDate = u"yyyy. d. M. 'г'.";
  words.longDate = u"dddd, d 'de' MMMM 'de' yyyy";
  words.longTime = u"tt h 'h' mm 'min' ss's'";
  words.dateSeparator = u". ";
  words.am = u"오전";
  words.pm = u"오후";
  const std::tuple<const LocaleRules&, const char16_t*, const char*> rows[] = {
      {dots, u"8.05", "1899-12-30T08:05:00"},
      {dots, u"8.5", "2026-05-08T00:00:00"},
      {dots, u"28.11", "2026-11-28T00:00:00"},
      {dots, u"10.11.12", "1899-12-30T10:11:12"},
      {dots, u"28.11.31", "1931-11-28T00:00:00"},
      {dots, u"28.11.2031, 8.15.42 pm", "2031-11-28T20:15:42"},
      {dots, u"8.15 Freitag, 28. November 2031", "2031-11-28T08:15:00"},
      {words, u"2031. 6. 5. г.", "2031-05-06T00:00:00"},
      {words, u"2031.6.5.г.오후8h15min42s", "2031-05-06T20:15:42"},
      {words, u"2031.6.5", "2031-05-06T00:00:00"},  // the order of the picture all the same
      {words, u"6 de mai de 2031", "2031-05-06T00:00:00"},
      {words, u"mardi, 6 mai 2031 8:15", "2031-05-06T08:15:00"},
      {words, u"203165", "no date"},
      {words, u"오후 13 h 15 min 42 s", "no date"}};
  for (const auto& [rules, text, expected] : rows) EXPECT_EQ(Read(text, rules), expected) << ToUtf8(text);
}

}  // namespace
}  // namespace qzbase::tests
