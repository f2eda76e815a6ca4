// Reads dates and times in the locale's own pictures: what the writer has written is read by the same picture.
//
// The short or the long date, then a time, or the time before it, or either alone. A time is the locale's long or short
// one, or one with the locale's separator as patterns write it ("hh:nn:ss", "hh:nn ampm"). The order of these decides
// where a text could be read by two: in Finnish "8.05" is a time and "28.11.2031" a day.
//
// A picture is met loosely where nothing can be mistaken: blanks may be more or fewer, A to Z ignore case, days, months
// and hours need no leading zeros. A picture's year of four digits wants three at least, and its minutes of two digits
// want both. Weekdays say nothing.
#pragma once

#include <string_view>

#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

// False, leaving `pParts` as they were, for every other text.
bool ReadPictures(std::u16string_view pText, DateParts& pParts, const LocaleRules& pRules);

}  // namespace qzbase::runtime
