// The tokens of date patterns: what the letters of "dd.mm.yyyy hh:nn" mean and how a pattern falls into them.
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/runtime/DateFields.h"

namespace qzbase::runtime {

// What a token does to the tokens round it, or that it is not one field but something put together.
enum class DateRole : std::uint8_t {
  Field,
  DayField,  // ends the time: a month behind it is no minute
  Hour,
  Month,
  MonthName,
  DayOfYear,
  Quarter,
  WeekDay,
  Week,
  ShortDate,
  LongDate,
  LongTime,
  General,
  HalfDayAsSpelled,
  HalfDayOfLocale,
  DateSeparator,
  TimeSeparator,
  End,
  Invalid,
};

struct DateToken {
  std::u16string_view letters;
  DateRole role;
  DateField field = DateField::Day;
  DateField otherField = field;  // of an hour in 12-hour form, of a month that is a minute, of a name beside a day
};

// A piece of a pattern: a token as it is spelled, or text that stands for itself.
struct PatternPiece {
  const DateToken* token = nullptr;
  std::u16string_view text;
  bool isQuoted = false;

  bool Is(DateRole pRole) const { return token && token->role == pRole; }
  bool IsHalfDay() const { return Is(DateRole::HalfDayAsSpelled) || Is(DateRole::HalfDayOfLocale); }
};

// Cuts the first piece off a pattern that is not empty. The last quote may be missing.
PatternPiece CutPiece(std::u16string_view& pRest);

}  // namespace qzbase::runtime
