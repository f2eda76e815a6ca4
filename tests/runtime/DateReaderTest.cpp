#include <cstdio>
#include <string>

#include "qzbase/runtime/DateReader.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using namespace qzbase::runtime;

// "2031-11-28T20:15:42", or "no date".
std::string Read(std::u16string_view pText, std::string_view pLocale) {
  Date date = {12345.5};
  if (!ReadDate(pText, date, TestLocale(pLocale), [] { return 2026; }))
    return date == Date{12345.5} ? "no date" : "spoiled";
  const DateParts parts = SplitDate(date);
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d", parts.year, parts.month, parts.day, parts.hour,
                parts.minute, parts.second);
  return text;
}

TEST(DateReaderTest, TextsOfTheTable) {
  Disagreements disagreements("texts read as dates");
  for (const CorpusRow& row : Corpus("parse_date.tsv")) {
    if (!row.IsSettled()) continue;
    disagreements.Checked();
    const std::string& answer = row["documented_iso"].empty() ? row["iso"] : row["documented_iso"];
    const std::string expected = row["hr"] == "00000000" ? answer : "no date";
    const std::string actual = Read(row.Text("text"), row["locale"]);
    if (actual != expected) disagreements.Add(row, row["text"], expected, actual);
  }
}

TEST(DateReaderTest, Texts) {
  const struct {
    const char16_t* text;
    const char* locale;
    const char* expected;
  } rows[] = {
      // Two numbers: the locale's day and month, else a month of a year.
      {u"2/3", "en-US", "2026-02-03T00:00:00"},
      {u"2/3", "de-DE", "2026-03-02T00:00:00"},
      {u"3/17", "de-DE", "2026-03-17T00:00:00"},
      {u"2/29", "en-US", "2029-02-01T00:00:00"},
      {u"31/2", "en-US", "1931-02-01T00:00:00"},
      // A named month keeps its place; then only orders with the month there count.
      {u"5 Nov 8", "en-US", "2005-11-08T00:00:00"},
      {u"5 Nov 8", "de-DE", "2008-11-05T00:00:00"},
      {u"Nov 40 6", "en-US", "no date"},
      {u"40 6 Nov", "en-US", "1940-11-06T00:00:00"},
      {u"Nov", "en-US", "no date"},
      {u"NOVEMBER5", "sv-SE", "2026-11-05T00:00:00"},
      {u"5 MÄRZ", "de-DE", "no date"},  // only A to Z ignore case
      // Weekdays say nothing, wherever they stand.
      {u"5/6 Friday, 2031", "en-US", "2031-05-06T00:00:00"},
      {u"Friday", "en-US", "no date"},
      // The time stands before or behind the date.
      {u"8:15 5/6", "en-US", "2026-05-06T08:15:00"},
      {u"5 8:15 6", "en-US", "no date"},
      {u"5/6 2 PM", "en-US", "2026-05-06T14:00:00"},
      {u"5 PM:6", "en-US", "1899-12-30T17:06:00"},
      {u"8.15", "en-US", "1899-12-30T08:15:00"},
      {u"8.15", "de-DE", "2026-08-15T00:00:00"},
      {u"1 2 3 4:5:6", "sv-SE", "2001-02-03T04:05:06"},
      {u"1 2 3 4 5:6:7", "sv-SE", "no date"},
      {u"5:6 PM PM", "en-US", "no date"},
      {u"AM 5", "en-US", "no date"},
      // Delimiters: a comma may open the text, none may close it.
      {u",5/,6", "en-US", "2026-05-06T00:00:00"},
      {u"/5/6", "en-US", "no date"},
      {u"5/-6/7", "en-US", "no date"},
      {u"5/6,", "en-US", "no date"},
      {u"8:", "en-US", "no date"},
      // Numbers.
      {u"5", "en-US", "no date"},
      {u"99999999999999999999/1/1", "en-US", "no date"},
      {u"1/1/65537", "en-US", "no date"},
  };
  for (const auto& row : rows) EXPECT_EQ(Read(row.text, row.locale), row.expected) << ToUtf8(row.text);
  EXPECT_EQ(Read(std::u16string_view(u"1/2\0/3", 6), "en-US"), "no date");
}

}  // namespace
}  // namespace qzbase::tests
