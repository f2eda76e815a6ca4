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

// Appends the text behind an opening quote ('' is a quote) and returns the place behind the closing one.
std::size_t AppendQuoted(std::u16string& pText, std::u16string_view pPicture, std::size_t pPlace) {
  for (; pPlace < pPicture.size(); ++pPlace) {
    if (pPicture[pPlace] == u'\'') {
      if (!pPicture.substr(pPlace + 1).starts_with(u'\'')) return pPlace + 1;
      ++pPlace;
    }
    pText += pPicture[pPlace];
  }
  return pPlace;
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

void AppendPicture(std::u16string& pText, std::u16string_view pPicture, const DateParts& pParts,
                   const LocaleRules& pRules) {
  for (std::size_t place = 0; place < pPicture.size();) {
    const char16_t c = pPicture[place];
    const auto letter = std::find_if(std::begin(kPictureLetters), std::end(kPictureLetters),
                                     [c](const PictureLetter& pLetter) { return pLetter.letter == c; });
    if (letter != std::end(kPictureLetters)) {
      const std::size_t length = std::min(pPicture.find_first_not_of(c, place), pPicture.size()) - place;
      AppendField(pText, letter->fieldOfLength[std::min<std::size_t>(length, 4) - 1], pParts, pRules);
      place += length;
    } else if (c == u'\'') {
      place = AppendQuoted(pText, pPicture, place + 1);
    } else {
      pText += c;
      ++place;
    }
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
