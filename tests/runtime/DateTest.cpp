#include <cstdio>
#include <limits>
#include <string>

#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/DateText.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {
namespace {

using namespace qzbase::runtime;

std::string Iso(const DateParts& pParts) {
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", pParts.year, pParts.month, pParts.day, pParts.hour,
                pParts.minute, pParts.second);
  return text;
}

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

TEST(DateTest, Splits) {
  const struct {
    double days;
    const char* expected;
  } rows[] = {
      {0, "1899-12-30 00:00:00"},
      {-1.25, "1899-12-29 06:00:00"},  // the fraction counts forward
      {-0.25, "1899-12-30 06:00:00"},
      {45000.999994, "2023-03-15 23:59:59"},
      {45000.999995, "2023-03-16 00:00:00"},  // rounds into the next day
      {-1.99999999, "1899-12-30 00:00:00"},
      {-657434.5, "0100-01-01 12:00:00"},
      {2958465.99999, "9999-12-31 23:59:59"},
      {0.5 / 86400, "1899-12-30 00:00:01"},
      {48180 + 4.5 / 86400, "2031-11-28 00:00:05"},  // a little less than the half in binary
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Iso(SplitDate({row.days})), row.expected) << row.days;
    EXPECT_TRUE(IsInCalendar({row.days})) << row.days;
  }

  const double infinity = std::numeric_limits<double>::infinity();
  const double notANumber = std::numeric_limits<double>::quiet_NaN();
  for (const double days : {-657435.0, 2958466.0, 2958465.999999, 1e300, -infinity, infinity, notANumber}) {
    EXPECT_FALSE(IsInCalendar({days})) << days;
    EXPECT_EQ(TextOrError([&] { return Iso(SplitDate({days})); }), "error 5") << days;
  }
}

TEST(DateTest, KnowsValidDays) {
  const struct {
    std::int32_t year, month, day;
    bool expected;
  } rows[] = {{2000, 2, 29, true},  {1900, 2, 29, false}, {2024, 2, 29, true},  {2023, 2, 29, false},
              {2023, 4, 31, false}, {2023, 0, 1, false},  {2023, 13, 1, false}, {2023, 1, 0, false},
              {2023, 1, 32, false}, {99, 12, 31, false},  {100, 1, 1, true},    {9999, 12, 31, true},
              {10000, 1, 1, false}, {2023, 257, 1, false}};
  for (const auto& row : rows)
    EXPECT_EQ(IsValidDay(row.year, row.month, row.day), row.expected) << row.year << ' ' << row.month << ' ' << row.day;
}

TEST(DateTest, TextsOfTheTable) {
  CheckTable("date_format.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    if (pRow["api"] != "VarBstrFromDate") return {};
    const DateTextParts parts = pRow["pattern"] == "VAR_TIMEVALUEONLY"   ? DateTextParts::TimeOnly
                                : pRow["pattern"] == "VAR_DATEVALUEONLY" ? DateTextParts::DateOnly
                                                                         : DateTextParts::Both;
    const Date date = {pRow.DoubleFromBits("value_bits")};
    return Comparison{pRow.Expected("text"),
                      TextOrError([&] { return ToUtf8(DateText(date, TestLocale(pRow["locale"]), parts)); })};
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

}  // namespace
}  // namespace qzbase::tests
