#include "qzbase/runtime/DateFields.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace qzbase::runtime {
namespace {

// A letter of the locale's pictures: the field of one letter, of two and so on; longer runs are the last one.
struct PictureLetter {
  char16_t letter;
  std::array<DateField, 4> fieldOfLength;
};

constexpr PictureLetter kPictureLetters[] = {
    {u'd', {DateField::Day, DateField::DayTwoDigits, DateField::DayShortName, DateField::DayName}},
    {u'M', {DateField::Month, DateField::MonthTwoDigits, DateField::MonthShortName, DateField::MonthName}},
    {u'y', {DateField::YearOfCentury, DateField::YearTwoDigits, DateField::Year, DateField::Year}},
    {u'H', {DateField::Hour, DateField::HourTwoDigits, DateField::HourTwoDigits, DateField::HourTwoDigits}},
    {u'h', {DateField::Hour12, DateField::Hour12TwoDigits, DateField::Hour12TwoDigits, DateField::Hour12TwoDigits}},
    {u'm', {DateField::Minute, DateField::MinuteTwoDigits, DateField::MinuteTwoDigits, DateField::MinuteTwoDigits}},
    {u's', {DateField::Second, DateField::SecondTwoDigits, DateField::SecondTwoDigits, DateField::SecondTwoDigits}},
    {u't', {DateField::HalfDayLetter, DateField::HalfDay, DateField::HalfDay, DateField::HalfDay}},
};

template <std::size_t N>
const std::u16string& NameOf(const std::array<std::u16string, N>& pNames, std::int32_t pIndex) {
  return pNames[static_cast<std::size_t>(pIndex)];
}

// A name beside a day; the plain one where the language has no other.
const std::u16string& NameWithDay(const std::array<std::u16string, 12>& pNamesWithDay,
                                  const std::array<std::u16string, 12>& pNames, std::int32_t pIndex) {
  const std::u16string& name = NameOf(pNamesWithDay, pIndex);
  return name.empty() ? NameOf(pNames, pIndex) : name;
}

// The name of a month beside a day instead of the name alone; other fields as they are.
DateField WithDay(DateField pMonth) {
  return pMonth == DateField::MonthName        ? DateField::MonthNameWithDay
         : pMonth == DateField::MonthShortName ? DateField::MonthShortNameWithDay
                                               : pMonth;
}

}  // namespace

void AppendDigits(std::u16string& pText, std::int32_t pNumber, std::int32_t pDigits) {
  char16_t digits[10];
  std::size_t first = std::size(digits);
  do {
    digits[--first] = static_cast<char16_t>(u'0' + pNumber % 10);
    pNumber /= 10;
    --pDigits;
  } while (first > 0 && (pNumber > 0 || pDigits > 0));
  pText.append(digits + first, std::size(digits) - first);
}

void AppendField(std::u16string& pText, DateField pField, const DateParts& pParts, const LocaleRules& pRules) {
  const std::u16string& halfDay = pParts.hour < 12 ? pRules.am : pRules.pm;
  const std::int32_t hour12 = (pParts.hour + 11) % 12 + 1;
  switch (pField) {
    case DateField::Day:
      return AppendDigits(pText, pParts.day);
    case DateField::DayTwoDigits:
      return AppendDigits(pText, pParts.day, 2);
    case DateField::DayShortName:
      pText += NameOf(pRules.shortDays, DayOfWeek(pParts));
      return;
    case DateField::DayName:
      pText += NameOf(pRules.days, DayOfWeek(pParts));
      return;
    case DateField::Month:
      return AppendDigits(pText, pParts.month);
    case DateField::MonthTwoDigits:
      return AppendDigits(pText, pParts.month, 2);
    case DateField::MonthShortName:
      pText += NameOf(pRules.shortMonths, pParts.month - 1);
      return;
    case DateField::MonthName:
      pText += NameOf(pRules.months, pParts.month - 1);
      return;
    case DateField::MonthShortNameWithDay:
      pText += NameWithDay(pRules.shortMonthsWithDay, pRules.shortMonths, pParts.month - 1);
      return;
    case DateField::MonthNameWithDay:
      pText += NameWithDay(pRules.monthsWithDay, pRules.months, pParts.month - 1);
      return;
    case DateField::YearOfCentury:
      return AppendDigits(pText, pParts.year % 100);
    case DateField::YearTwoDigits:
      return AppendDigits(pText, pParts.year % 100, 2);
    case DateField::Year:
      return AppendDigits(pText, pParts.year);
    case DateField::Hour:
      return AppendDigits(pText, pParts.hour);
    case DateField::HourTwoDigits:
      return AppendDigits(pText, pParts.hour, 2);
    case DateField::Hour12:
      return AppendDigits(pText, hour12);
    case DateField::Hour12TwoDigits:
      return AppendDigits(pText, hour12, 2);
    case DateField::Minute:
      return AppendDigits(pText, pParts.minute);
    case DateField::MinuteTwoDigits:
      return AppendDigits(pText, pParts.minute, 2);
    case DateField::Second:
      return AppendDigits(pText, pParts.second);
    case DateField::SecondTwoDigits:
      return AppendDigits(pText, pParts.second, 2);
    case DateField::HalfDayLetter:
      pText += halfDay.substr(0, 1);
      return;
    case DateField::HalfDay:
      pText += halfDay;
      return;
  }
}

DateField FieldOf(const os::PicturePiece& pPiece, bool pWithDay) {
  const auto letter = std::find_if(std::begin(kPictureLetters), std::end(kPictureLetters),
                                   [&](const PictureLetter& pLetter) { return pLetter.letter == pPiece.letter; });
  const DateField field = letter->fieldOfLength[std::min<std::size_t>(pPiece.text.size(), 4) - 1];
  return pWithDay ? WithDay(field) : field;
}

void AppendPicture(std::u16string& pText, std::u16string_view pPicture, const DateParts& pParts,
                   const LocaleRules& pRules) {
  const bool hasDay = os::HasDayOfMonth(pPicture);
  os::PicturePieces pieces(pPicture);
  for (os::PicturePiece piece; pieces.Next(piece);) {
    if (piece.IsField())
      AppendField(pText, FieldOf(piece, hasDay), pParts, pRules);
    else
      pText += piece.text;
  }
}

void AppendGeneralDate(std::u16string& pText, const DateParts& pParts, const LocaleRules& pRules) {
  const bool isDayZero = pParts.year == 1899 && pParts.month == 12 && pParts.day == 30;
  const bool isMidnight = pParts.hour == 0 && pParts.minute == 0 && pParts.second == 0;
  if (!isDayZero) AppendPicture(pText, pRules.shortDate, pParts, pRules);
  if (!isDayZero && !isMidnight) pText += u' ';
  if (isDayZero || !isMidnight) AppendPicture(pText, pRules.longTime, pParts, pRules);
}

}  // namespace qzbase::runtime
