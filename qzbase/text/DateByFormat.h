// Reads a date by the places of its parts in a format, whatever stands between them.
//
//   "28.11.31" by "DD.MM.YY"                      28 November 2031
//   "2031-11-28 20:15" by "yyyy-mm-dd hh:nn"      the same day, a quarter past eight in the evening
//   "20:15" by "HH:NN"                            that time on day 0 of month 0 of year 2000: 1999-11-30
//
// Every run of one of the letters Y, M, D, H, N, S (either case) is a field, and its piece of the text stands at the
// same places as the run; six fields count. "M" is always the month. Of two fields of one letter the later holds.
//
// The pieces are whole numbers as users write them. A year below 1900 has 2000 added. A part that is not named is 0;
// parts outside their bounds are carried on (month 13 is the next January, day 0 the last day of the month before).
#pragma once

#include <string_view>

#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Locale.h"

namespace qzbase::ModConvert {

// False, leaving `pDate` as it was, when a piece is missing or no number of 16 bits, and outside the calendar.
bool ReadDateByFormat(std::u16string_view pText, std::u16string_view pFormat, runtime::Date& pDate,
                      const runtime::LocaleRules& pRules = runtime::ThreadLocale());

}  // namespace qzbase::ModConvert
