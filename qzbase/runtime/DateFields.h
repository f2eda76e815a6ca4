// The fields that texts of dates are made of, and the locale's own pictures ("dddd, d. MMMM yyyy", "HH:mm:ss").
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/os/LocalePicture.h"
#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

enum class DateField : std::uint8_t {
  Day,             // 8
  DayTwoDigits,    // 08
  DayShortName,    // Mon
  DayName,         // Monday
  Month,           // 3
  MonthTwoDigits,  // 03
  MonthShortName,  // Mar
  MonthName,       // March
  MonthShortNameWithDay,
  MonthNameWithDay,  // as the language says it beside a day
  YearOfCentury,     // 4
  YearTwoDigits,     // 04
  Year,              // 2004
  Hour,              // 20
  HourTwoDigits,
  Hour12,  // 8, and 12 for midnight and noon
  Hour12TwoDigits,
  Minute,
  MinuteTwoDigits,
  Second,
  SecondTwoDigits,
  HalfDayLetter,  // the first character of the locale's text
  HalfDay,        // AM
};

// Appends the decimal digits of a number that is not negative, with zeros before it up to `pDigits`.
void AppendDigits(std::u16string& pText, std::int32_t pNumber, std::int32_t pDigits = 1);

void AppendField(std::u16string& pText, DateField pField, const DateParts& pParts, const LocaleRules& pRules);

// The field that a field of a picture is; months have the names that go with a day where `pWithDay`.
DateField FieldOf(const os::PicturePiece& pPiece, bool pWithDay);

// Appends a picture of the locale. Its month has the name that goes with a day where the picture has a day.
void AppendPicture(std::u16string& pText, std::u16string_view pPicture, const DateParts& pParts,
                   const LocaleRules& pRules);

// Appends the short date and the long time; no time at midnight, no date on day 0.
void AppendGeneralDate(std::u16string& pText, const DateParts& pParts, const LocaleRules& pRules);

}  // namespace qzbase::runtime
