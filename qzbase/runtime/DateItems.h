// The numbers and names of a text that may be a date, in the order they stand in.
//
//   "8:15 PM 28 Nov 2031" -> 8 (goes on as a time), 15 (PM), 28, 11 (named), 2031
//
// Blanks, delimiters of dates, names of weekdays and the words in the locale's pictures of dates ("28 de noviembre")
// only divide; anything else makes the text no date.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "qzbase/runtime/DateWords.h"

namespace qzbase::runtime {

struct DateItem {
  std::int32_t value = 0;
  bool isNamed = false;        // a month by its name
  bool isTimeGoingOn = false;  // a time delimiter stands behind it
  HalfDay half = HalfDay::None;
};

class DateItems {
 public:
  static constexpr std::size_t kMaxItems = 6;

  // False when the text holds something that belongs to no date, too many items, or ends with a delimiter.
  bool Read(std::u16string_view pText, const LocaleRules& pRules);

  std::size_t Size() const noexcept { return count_; }
  const DateItem& operator[](std::size_t pIndex) const { return items_[pIndex]; }

 private:
  bool ReadNumber(std::u16string_view& pRest, const LocaleRules& pRules);
  bool ReadWord(std::u16string_view& pRest, const LocaleRules& pRules);
  bool ReadPictureWord(std::u16string_view& pRest, const LocaleRules& pRules);
  bool ReadDelimiter(std::u16string_view& pRest, const LocaleRules& pRules);
  bool Add(DateItem pItem);
  DateItem& Last() { return items_[count_ - 1]; }

  std::array<DateItem, kMaxItems> items_{};
  std::size_t count_ = 0;
  // Read since the last item: any delimiter, and one of dates that is no comma. Of the latter there may be one only.
  bool delimiterOpen_ = false;
  bool dateDelimiterOpen_ = false;
};

}  // namespace qzbase::runtime
