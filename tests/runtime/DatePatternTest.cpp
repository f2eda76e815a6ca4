#include <string>
#include <utility>

#include "qzbase/runtime/DatePattern.h"
#include "qzbase/runtime/DateReader.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {
namespace {

using namespace qzbase::runtime;

std::string Answer(Date pDate, std::u16string_view pPattern, std::string_view pLocale, WeekRule pWeek) {
  return TextOrError([&] { return ToUtf8(FormatDate(pDate, pPattern, TestLocale(pLocale), pWeek)); });
}

// Patterns and names that make a number of the date are the business of `Format`.
bool IsNumberPattern(const std::string& pPattern) {
  for (const char* name : {"General Number", "Standard", "Yes/No"})
    if (pPattern == name) return true;
  return !pPattern.empty() && pPattern.find_first_not_of("0#.,%") == std::string::npos;
}

TEST(DatePatternTest, TextsOfTheTable) {
  CheckTable("date_format.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    if (pRow["api"] != "VarFormat" || IsNumberPattern(pRow["pattern"])) return {};
    const WeekRule week = {std::stoi(pRow["first_day"]), std::stoi(pRow["first_week"])};
    return Comparison{pRow.Expected("text"),
                      Answer({pRow.DoubleFromBits("value_bits")}, pRow.Text("pattern"), pRow["locale"], week)};
  });
}

TEST(DatePatternTest, Patterns) {
  const struct {
    const char16_t* pattern;
    const char* expected;  // for 2031-11-28 20:15:42 in Swedish
  } rows[] = {{u"shortdate", "2031-11-28"},
              {u"ShortTime", "20:15"},
              {u"LongTime", "20:15:42"},
              {u"MediumDate", "28-nov.-31"},
              {u"GeneralDate", "2031-11-28 20:15:42"},
              {u"", "2031-11-28 20:15:42"},
              {u"h am/pm h", "8 pm 20"},          // only the hour before the mark has 12 hours
              {u"h \"am/pm\" h", "20 am/pm 20"},  // no mark at all
              {u"h A/P", "8 P"},
              {u"h:m m h:m", "20:15 11 20:11"},  // only the first m is the minute
              {u"h d m", "20 28 11"},            // the day ends the time
              {u"h yyyy mmm m", "20 2031 nov. 15"},
              {u"yyyy\"", "2031"},
              {u"d\"open", "28open"},
              {u"d\\", "28"},
              {u"d;m", "28"},
              {u";d", ""},
              {u"d\";\"m\\;", "28;11;"},
              {u"h;am/pm", "20"},
              {u"tttt t", "tttt t"},
              {u"yyyyy", "error 5"},
              {u"am/pm ampm", "error 5"}};
  const Date date = MakeDate({.year = 2031, .month = 11, .day = 28, .hour = 20, .minute = 15, .second = 42});
  for (const auto& row : rows) EXPECT_EQ(Answer(date, row.pattern, "sv-SE", {}), row.expected) << ToUtf8(row.pattern);
  EXPECT_EQ(Answer(date, u"w", "sv-SE", {8, 1}), "error 5");
  EXPECT_EQ(Answer(date, u"w", "sv-SE", {1, 4}), "error 5");
}

// The system's own names; they are read beside a day and alone.
TEST(DatePatternTest, MonthsBesideADay) {
  const std::pair<const char*, const char16_t*> rows[] = {
      {"cs-CZ", u"listopadu"}, {"ru-RU", u"ноября"}, {"pl-PL", u"listopada"}, {"de-DE", u"November"}};
  for (const auto& [locale, name] : rows) {
    const LocaleRules rules = os::NamedLocaleRules(locale);
    EXPECT_EQ(ToUtf8(FormatDate({48180}, u"d. mmmm", rules)), ToUtf8(u"28. " + std::u16string(name)));
    EXPECT_EQ(FormatDate({48180}, u"dddd mmmm yyyy", rules), rules.days[4] + u" " + rules.months[10] + u" 2031");
    Date date;
    for (const std::u16string_view pattern : {u"d mmmm yyyy", u"mmmm d, yyyy", u"d-mmm-yyyy", u"Long Date"})
      EXPECT_TRUE(ReadDate(FormatDate({48180}, pattern, rules), date, rules) && date == Date{48180})
          << locale << ToUtf8(pattern);
    EXPECT_TRUE(ReadDate(FormatDate({48180}, u"mmmm yyyy", rules), date, rules) && date == Date{48153}) << locale;
  }
}

// Weeks at both ends of years that begin on a Thursday, Friday and Saturday.
TEST(DatePatternTest, Weeks) {
  const struct {
    DateParts day;
    WeekRule rule;
    const char* expected;
  } rows[] = {{{.year = 2026, .month = 1, .day = 1}, {1, 2}, "4 1"},
              {{.year = 2027, .month = 1, .day = 3}, {1, 2}, "7 53"},
              {{.year = 2027, .month = 1, .day = 4}, {1, 2}, "1 1"},
              {{.year = 2024, .month = 12, .day = 29}, {1, 2}, "7 52"},
              {{.year = 2024, .month = 12, .day = 30}, {1, 2}, "1 1"},
              {{.year = 2027, .month = 1, .day = 3}, {1, 3}, "7 52"},
              {{.year = 2024, .month = 12, .day = 31}, {1, 3}, "2 53"},
              {{.year = 2000, .month = 12, .day = 31}, {7, 1}, "1 54"},
              {{.year = 100, .month = 1, .day = 1}, {1, 3}, "5 52"},
              {{.year = 9999, .month = 12, .day = 31}, {1, 2}, "5 52"}};
  for (const auto& row : rows)
    EXPECT_EQ(Answer(MakeDate(row.day), u"w ww", "en-US", row.rule), row.expected)
        << row.day.year << '-' << row.day.month << '-' << row.day.day;
}

TEST(DatePatternTest, TellsDatePatterns) {
  for (const char16_t* pattern : {u"d", u"x Y", u"Short Date", u"-h", u"/", u"am/pm", u"d0", u"\"0\"d", u"\\0d"})
    EXPECT_TRUE(IsDatePattern(pattern)) << ToUtf8(pattern);
  for (const char16_t* pattern : {u"", u"0", u"0 d", u"#:00", u"\"d\"0", u"\\d0", u"@d", u"x", u"t", u"\"d"})
    EXPECT_FALSE(IsDatePattern(pattern)) << ToUtf8(pattern);
}

}  // namespace
}  // namespace qzbase::tests
