#include "qzbase/runtime/DatePattern.h"

#include <cstddef>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/DateTokens.h"
#include "qzbase/runtime/TextCompare.h"
#include "qzbase/runtime/WeekNumber.h"

namespace qzbase::runtime {
namespace {

struct NamedFormat {
  std::u16string_view name;
  std::u16string_view nameWithoutBlank;
  std::u16string_view pattern;
};

constexpr NamedFormat kNamedFormats[] = {
    {u"General Date", u"GeneralDate", u"c"},       {u"Long Date", u"LongDate", u"dddddd"},
    {u"Medium Date", u"MediumDate", u"dd-mmm-yy"}, {u"Short Date", u"ShortDate", u"ddddd"},
    {u"Long Time", u"LongTime", u"ttttt"},         {u"Medium Time", u"MediumTime", u"hh:nn ampm"},
    {u"Short Time", u"ShortTime", u"hh:nn"},
};

// Whether a mark for the half of the day stands before the next hour.
bool HalfDayFollows(std::u16string_view pRest) {
  while (!pRest.empty()) {
    const PatternPiece piece = CutPiece(pRest);
    if (piece.IsHalfDay()) return true;
    if (piece.Is(DateRole::Hour) || piece.Is(DateRole::End)) return false;
  }
  return false;
}

// Whether a day of the month stands in the first section of a pattern.
bool HasDayOfMonth(std::u16string_view pPattern) {
  while (!pPattern.empty()) {
    const PatternPiece piece = CutPiece(pPattern);
    if (piece.Is(DateRole::End)) return false;
    if (piece.Is(DateRole::DayField) && piece.text.size() <= 2) return true;
  }
  return false;
}

// Writes the pieces of one pattern, remembering what of them changes the meaning of later ones.
class PatternWriter {
 public:
  PatternWriter(std::u16string& pText, const DateParts& pParts, const LocaleRules& pRules, WeekRule pWeek)
      : text_(pText), parts_(pParts), rules_(pRules), week_(pWeek) {}

  void Write(std::u16string_view pPattern) {
    pattern_ = pPattern;
    while (!pPattern.empty()) {
      const PatternPiece piece = CutPiece(pPattern);
      if (piece.Is(DateRole::End)) return;
      if (piece.token)
        WriteToken(*piece.token, piece.text, pPattern);
      else
        text_ += piece.text;
    }
  }

 private:
  void WriteToken(const DateToken& pToken, std::u16string_view pSpelled, std::u16string_view pRest);
  void WriteField(DateField pField) { AppendField(text_, pField, parts_, rules_); }
  void WritePicture(std::u16string_view pPicture) { AppendPicture(text_, pPicture, parts_, rules_); }
  void WriteDayPicture(std::u16string_view pPicture);
  void WriteMonth(const DateToken& pToken);
  void WriteHalfDay(const DateToken& pToken, std::u16string_view pSpelled);

  // The week rule as the arithmetic has it, with the locale's setting where nothing is said.
  std::int32_t FirstDay() const { return week_.firstDay == 0 ? rules_.firstDayOfWeek : week_.firstDay - 1; }
  std::int32_t DaysOfFirstWeek() const;

  std::u16string& text_;
  const DateParts& parts_;
  const LocaleRules& rules_;
  WeekRule week_;
  std::u16string_view pattern_;
  bool minuteNext_ = false;  // the next m or mm is the minute, which is written so once
  bool minuteWritten_ = false;
  bool halfDaySeen_ = false;
};

void PatternWriter::WriteToken(const DateToken& pToken, std::u16string_view pSpelled, std::u16string_view pRest) {
  switch (pToken.role) {
    case DateRole::Field:
      return WriteField(pToken.field);
    case DateRole::DayField:
      minuteNext_ = false;
      return WriteField(pToken.field);
    case DateRole::Hour:
      minuteNext_ = !minuteWritten_;
      return WriteField(HalfDayFollows(pRest) ? pToken.otherField : pToken.field);
    case DateRole::Month:
      return WriteMonth(pToken);
    case DateRole::MonthName:
      return WriteField(HasDayOfMonth(pattern_) ? pToken.otherField : pToken.field);
    case DateRole::DayOfYear:
      return AppendDigits(text_, runtime::DayOfYear(parts_));
    case DateRole::Quarter:
      return AppendDigits(text_, (parts_.month + 2) / 3);
    case DateRole::WeekDay:
      return AppendDigits(text_, DayInWeek(parts_, FirstDay()));
    case DateRole::Week:
      return AppendDigits(text_, WeekOfYear(parts_, FirstDay(), DaysOfFirstWeek()));
    case DateRole::ShortDate:
      return WriteDayPicture(rules_.shortDate);
    case DateRole::LongDate:
      return WriteDayPicture(rules_.longDate);
    case DateRole::LongTime:
      return WritePicture(rules_.longTime);
    case DateRole::General:
      return AppendGeneralDate(text_, parts_, rules_);
    case DateRole::HalfDayAsSpelled:
    case DateRole::HalfDayOfLocale:
      return WriteHalfDay(pToken, pSpelled);
    case DateRole::DateSeparator:
      text_ += rules_.dateSeparator;
      return;
    case DateRole::TimeSeparator:
      text_ += rules_.timeSeparator;
      return;
    case DateRole::End:
      return;
    case DateRole::Invalid:
      Raise(RuntimeError::InvalidArgument);
  }
}

void PatternWriter::WriteDayPicture(std::u16string_view pPicture) {
  minuteNext_ = false;
  WritePicture(pPicture);
}

void PatternWriter::WriteMonth(const DateToken& pToken) {
  WriteField(minuteNext_ ? pToken.otherField : pToken.field);
  minuteWritten_ = minuteWritten_ || minuteNext_;
  minuteNext_ = false;
}

void PatternWriter::WriteHalfDay(const DateToken& pToken, std::u16string_view pSpelled) {
  if (halfDaySeen_) Raise(RuntimeError::InvalidArgument);
  halfDaySeen_ = true;
  if (pToken.role == DateRole::HalfDayOfLocale) return WriteField(DateField::HalfDay);
  const std::size_t length = pSpelled.size() / 2;  // of either text, with one "/" between them
  text_ += pSpelled.substr(parts_.hour < 12 ? 0 : length + 1, length);
}

std::int32_t PatternWriter::DaysOfFirstWeek() const {
  if (week_.firstWeek == 0) return rules_.firstWeekOfYear == 1 ? 7 : rules_.firstWeekOfYear == 2 ? 4 : 1;
  return week_.firstWeek == 3 ? 7 : week_.firstWeek == 2 ? 4 : 1;
}

// The pattern a named format stands for; every other pattern as it is.
std::u16string_view ResolveName(std::u16string_view pPattern) {
  for (const NamedFormat& format : kNamedFormats)
    if (EqualName(pPattern, format.name) || EqualName(pPattern, format.nameWithoutBlank)) return format.pattern;
  return pPattern.empty() ? kNamedFormats[0].pattern : pPattern;
}

}  // namespace

std::u16string FormatDate(Date pDate, std::u16string_view pPattern, const LocaleRules& pRules, WeekRule pWeek) {
  if (pWeek.firstDay < 0 || pWeek.firstDay > 7 || pWeek.firstWeek < 0 || pWeek.firstWeek > 3)
    Raise(RuntimeError::InvalidArgument);
  const DateParts parts = SplitDate(pDate);
  std::u16string text;
  PatternWriter(text, parts, pRules, pWeek).Write(ResolveName(pPattern));
  return text;
}

bool IsDatePattern(std::u16string_view pPattern) {
  while (!pPattern.empty()) {
    const PatternPiece piece = CutPiece(pPattern);
    if (piece.token && !piece.Is(DateRole::End)) return true;
    const bool isOfOthers = std::u16string_view(u"0#.@&<>!").find(piece.text) != std::u16string_view::npos;
    if (!piece.isQuoted && isOfOthers) return false;
  }
  return false;
}

}  // namespace qzbase::runtime
