#include <cstdio>
#include <string>

#include "qzbase/runtime/DateReader.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using namespace qzbase::runtime;

// "2031-11-28T20:15:42", or "no date".
std::string Read(std::u16string_view pText, const LocaleRules& pRules) {
  Date date = {12345.5};
  if (!ReadDate(pText, date, pRules, [] { return 2026; })) return date == Date{12345.5} ? "no date" : "spoiled";
  const DateParts parts = SplitDate(date);
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d", parts.year, parts.month, parts.day, parts.hour,
                parts.minute, parts.second);
  return text;
}

std::string Read(std::u16string_view pText, std::string_view pLocale) {
  return Read(pText, TestLocale(pLocale));
}

TEST(DateReaderTest, TextsOfTheTable) {
  CheckTable("parse_date.tsv", [](const CorpusRow& pRow) -> std::optional<Comparison> {
    const std::string& answer = pRow["documented_iso"].empty() ? pRow["iso"] : pRow["documented_iso"];
    return Comparison{pRow["hr"] == "00000000" ? answer : "no date", Read(pRow.Text("text"), pRow["locale"])};
  });
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
      {u"40 6 Nov", "en-US", "1940-11-06T00:00:00"},
      {u"NOVEMBER5", "sv-SE", "2026-11-05T00:00:00"},
      // Weekdays say nothing, wherever they stand.
      {u"5/6 Friday, 2031", "en-US", "2031-05-06T00:00:00"},
      // The time stands before or behind the date.
      {u"8:15 5/6", "en-US", "2026-05-06T08:15:00"},
      {u"5/6 2 PM", "en-US", "2026-05-06T14:00:00"},
      {u"5 PM:6", "en-US", "1899-12-30T17:06:00"},
      {u"8.15", "en-US", "1899-12-30T08:15:00"},
      {u"8.15", "de-DE", "2026-08-15T00:00:00"},
      {u"1 2 3 4:5:6", "sv-SE", "2001-02-03T04:05:06"},
      // A comma may open the text.
      {u",5/,6", "en-US", "2026-05-06T00:00:00"},
  };
  for (const auto& row : rows) EXPECT_EQ(Read(row.text, row.locale), row.expected) << ToUtf8(row.text);
}

// Where one mark separates dates and times, the pictures say what a text is. Words and blanks of the pictures may be
// left out.
TEST(DateReaderTest, PicturesOfTheLocale) {
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
  const struct {
    const LocaleRules& rules;
    const char16_t* text;
    const char* expected;
  } rows[] = {
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
      {words, u"오후 13 h 15 min 42 s", "no date"},
  };
  for (const auto& row : rows) EXPECT_EQ(Read(row.text, row.rules), row.expected) << ToUtf8(row.text);
}

TEST(DateReaderTest, RefusesTheRest) {
  for (const char16_t* text : {u"Nov 40 6", u"Nov", u"Friday", u"5 8:15 6", u"5:6 PM PM", u"AM 5", u"/5/6", u"5/-6/7",
                               u"5/6,", u"8:", u"5", u"99999999999999999999/1/1", u"1/1/65537"})
    EXPECT_EQ(Read(text, "en-US"), "no date") << ToUtf8(text);
  EXPECT_EQ(Read(std::u16string_view(u"1/2\0/3", 6), "en-US"), "no date");
  EXPECT_EQ(Read(u"5 MÄRZ", "de-DE"), "no date") << "only A to Z ignore case";
  EXPECT_EQ(Read(u"1 2 3 4 5:6:7", "sv-SE"), "no date");
}

}  // namespace
}  // namespace qzbase::tests
