#include "qzbase/runtime/DatePictureReader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "qzbase/os/LocalePicture.h"
#include "qzbase/runtime/Characters.h"
#include "qzbase/runtime/DateFields.h"
#include "qzbase/runtime/DateWords.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::runtime {
namespace {

// Times as patterns write them; the ":" stands for the locale's separator.
constexpr std::u16string_view kClock = u"H:mm:ss";
constexpr std::u16string_view kShortClock = u"H:mm";
constexpr std::u16string_view kHalfDayClock = u"h:mm:ss tt";
constexpr std::u16string_view kShortHalfDayClock = u"h:mm tt";

// Blanks, and the marks of the writing direction, which nobody can see.
bool IsUnseen(char16_t pCharacter) {
  return IsBlank(pCharacter) || pCharacter == u'\u200E' || pCharacter == u'\u200F' || pCharacter == u'\u061C';
}

// Walks through a text picture by picture, gathering the parts.
class PictureScanner {
 public:
  PictureScanner(std::u16string_view pText, const LocaleRules& pRules) : text_(pText), rules_(pRules) {}

  // Takes what a picture has written off the front; where that fails the scanner is of no more use.
  bool TakeDate(std::u16string_view pPicture) {
    parts_.year = parts_.month = parts_.day = 0;
    return TakePicture(pPicture) && IsValidDay(parts_.year, parts_.month, parts_.day);
  }
  bool TakeTime(std::u16string_view pPicture);

  // What may stand between a date and a time.
  void TakeGap() {
    SkipUnseen();
    Take(u",");
  }

  bool IsAtEnd() {
    SkipUnseen();
    return place_ == text_.size();
  }

  const DateParts& Parts() const { return parts_; }

 private:
  bool TakePicture(std::u16string_view pPicture);
  bool TakeField(const os::PicturePiece& pPiece);
  bool TakeText(std::u16string_view pText);
  bool TakeNumber(std::int32_t& pNumber, std::size_t pLeast, std::size_t pMost = 2);
  bool TakeHalfDay(const os::PicturePiece& pPiece);
  bool Take(std::u16string_view pText);
  bool Take(const DateWord& pWord) { return place_ += pWord.length, pWord.length > 0; }
  void SkipUnseen() {
    while (place_ < text_.size() && IsUnseen(text_[place_])) ++place_;
  }

  std::u16string_view Rest() const { return text_.substr(place_); }

  std::u16string_view text_;
  std::size_t place_ = 0;
  const LocaleRules& rules_;
  DateParts parts_;
  std::int32_t hour12_ = 0;  // 0: the hour is one of 24
  HalfDay half_ = HalfDay::None;
};

bool PictureScanner::TakeTime(std::u16string_view pPicture) {
  parts_.hour = parts_.minute = parts_.second = hour12_ = 0;
  half_ = HalfDay::None;
  if (!TakePicture(pPicture) || hour12_ > 12) return false;
  if (hour12_ > 0) parts_.hour = hour12_ % 12 + (half_ == HalfDay::Pm ? 12 : 0);
  return parts_.hour < 24 && parts_.minute < 60 && parts_.second < 60;
}

bool PictureScanner::TakePicture(std::u16string_view pPicture) {
  SkipUnseen();
  const std::size_t start = place_;
  os::PicturePieces pieces(pPicture);
  for (os::PicturePiece piece; pieces.Next(piece);)
    if (!(piece.IsField() ? TakeField(piece) : TakeText(piece.text))) return false;
  return place_ > start;
}

bool PictureScanner::TakeField(const os::PicturePiece& pPiece) {
  switch (FieldOf(pPiece, false)) {
    case DateField::Day:
    case DateField::DayTwoDigits:
      return TakeNumber(parts_.day, 1);
    case DateField::DayShortName:
    case DateField::DayName:
      return Take(FindWeekDay(Rest(), rules_));
    case DateField::Month:
    case DateField::MonthTwoDigits:
      return TakeNumber(parts_.month, 1);
    case DateField::MonthShortName:
    case DateField::MonthName:
    case DateField::MonthShortNameWithDay:
    case DateField::MonthNameWithDay: {
      const DateWord month = FindMonth(Rest(), rules_);
      parts_.month = month.value;
      return Take(month);
    }
    case DateField::YearOfCentury:
    case DateField::YearTwoDigits:
    case DateField::Year: {
      const bool isTaken = TakeNumber(parts_.year, pPiece.text.size() > 2 ? 3 : 1, 4);
      parts_.year = FullYear(parts_.year);
      return isTaken;
    }
    case DateField::Hour:
    case DateField::HourTwoDigits:
      return TakeNumber(parts_.hour, 1);
    case DateField::Hour12:
    case DateField::Hour12TwoDigits:
      return TakeNumber(hour12_, 1) && hour12_ > 0;
    case DateField::Minute:
    case DateField::MinuteTwoDigits:
      return TakeNumber(parts_.minute, std::min<std::size_t>(pPiece.text.size(), 2));
    case DateField::Second:
    case DateField::SecondTwoDigits:
      return TakeNumber(parts_.second, std::min<std::size_t>(pPiece.text.size(), 2));
    case DateField::HalfDayLetter:
    case DateField::HalfDay:
      return TakeHalfDay(pPiece);
  }
  return false;
}

// Two numbers are never set apart by nothing where the picture has a blank: "28112031" is a number.
bool PictureScanner::TakeText(std::u16string_view pText) {
  const std::size_t start = place_;
  for (const char16_t& character : pText) {
    if (IsUnseen(character))
      SkipUnseen();
    else if (!Take({&character, 1}) && !(character == u':' && Take(rules_.timeSeparator)))
      return false;
  }
  return place_ > start || start == 0 || place_ == text_.size() || !IsDecimalDigit(text_[start - 1]) ||
         !IsDecimalDigit(text_[place_]);
}

bool PictureScanner::TakeNumber(std::int32_t& pNumber, std::size_t pLeast, std::size_t pMost) {
  const std::size_t start = place_;
  for (pNumber = 0; place_ < text_.size() && place_ < start + pMost && IsDecimalDigit(text_[place_]); ++place_)
    pNumber = pNumber * 10 + (text_[place_] - u'0');
  return place_ - start >= pLeast;
}

bool PictureScanner::TakeHalfDay(const os::PicturePiece& pPiece) {
  if (pPiece.text.size() == 1) {
    half_ = Take(rules_.am.substr(0, 1)) ? HalfDay::Am : HalfDay::Pm;
    return half_ == HalfDay::Am || Take(rules_.pm.substr(0, 1));
  }
  const DateWord word = FindHalfDay(Rest(), rules_);
  half_ = static_cast<HalfDay>(word.value);
  return Take(word);
}

bool PictureScanner::Take(std::u16string_view pText) {
  if (pText.empty() || !EqualName(Rest().substr(0, pText.size()), pText)) return false;
  place_ += pText.size();
  return true;
}

using Pictures = std::span<const std::u16string_view>;
using TakePicture = bool (PictureScanner::*)(std::u16string_view);

// Reads one of the first pictures, alone or with one of the second behind it.
bool ReadInOrder(const PictureScanner& pStart, TakePicture pTakeFirst, Pictures pFirst, TakePicture pTakeSecond,
                 Pictures pSecond, DateParts& pParts) {
  for (const std::u16string_view picture : pFirst) {
    PictureScanner first = pStart;
    if (!(first.*pTakeFirst)(picture)) continue;
    if (first.IsAtEnd()) return pParts = first.Parts(), true;
    first.TakeGap();
    for (const std::u16string_view otherPicture : pSecond) {
      PictureScanner second = first;
      if ((second.*pTakeSecond)(otherPicture) && second.IsAtEnd()) return pParts = second.Parts(), true;
    }
  }
  return false;
}

}  // namespace

bool ReadPictures(std::u16string_view pText, DateParts& pParts, const LocaleRules& pRules) {
  const std::u16string_view dates[] = {pRules.shortDate, pRules.longDate};
  const std::u16string_view times[] = {pRules.longTime, pRules.shortTime, kClock,
                                       kShortClock,     kHalfDayClock,    kShortHalfDayClock};
  const PictureScanner start(pText, pRules);
  return ReadInOrder(start, &PictureScanner::TakeDate, dates, &PictureScanner::TakeTime, times, pParts) ||
         ReadInOrder(start, &PictureScanner::TakeTime, times, &PictureScanner::TakeDate, dates, pParts);
}

}  // namespace qzbase::runtime
