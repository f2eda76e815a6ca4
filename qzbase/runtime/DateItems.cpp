#include "qzbase/runtime/DateItems.h"

#include <algorithm>

#include "qzbase/os/LocalePicture.h"
#include "qzbase/runtime/Characters.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::runtime {
namespace {

using namespace std::string_view_literals;

// More than any year; longer numbers stay at it.
constexpr std::int32_t kTooLarge = 100000;

// The length of a word at the start of a text that stands between the fields of a picture; 0 if there is none.
std::size_t PictureWordLength(std::u16string_view pText, std::u16string_view pPicture) {
  os::PicturePieces pieces(pPicture);
  std::size_t length = 0;
  for (os::PicturePiece piece; pieces.Next(piece);) {
    const std::u16string_view word = WithoutBlanks(piece.text);
    if (!piece.IsField() && word.size() > length && word[0] >= u'A' && EqualName(pText.substr(0, word.size()), word))
      length = word.size();
  }
  return length;
}

}  // namespace

bool DateItems::Read(std::u16string_view pText, const LocaleRules& pRules) {
  while (!pText.empty()) {
    if (IsBlank(pText[0]))
      pText.remove_prefix(1);
    else if (IsDecimalDigit(pText[0]) ? !ReadNumber(pText, pRules)
                                      : !ReadWord(pText, pRules) && !ReadDelimiter(pText, pRules))
      return false;
  }
  return !delimiterOpen_;
}

// Names of months may begin with a number ("11月").
bool DateItems::ReadNumber(std::u16string_view& pRest, const LocaleRules& pRules) {
  std::size_t digits = 0;
  std::int32_t value = 0;
  for (; digits < pRest.size() && IsDecimalDigit(pRest[digits]); ++digits)
    value = std::min(value * 10 + (pRest[digits] - u'0'), kTooLarge);
  const DateWord month = FindMonth(pRest, pRules);
  const bool isNamed = month.length > digits;
  pRest.remove_prefix(isNamed ? month.length : digits);
  return Add({.value = isNamed ? month.value : value, .isNamed = isNamed});
}

bool DateItems::ReadWord(std::u16string_view& pRest, const LocaleRules& pRules) {
  if (pRest[0] < u'A') return false;  // delimiters, the most frequent case
  const DateWord word = FindDateWord(pRest, pRules);
  if (word.kind == DateWord::Kind::None) return ReadPictureWord(pRest, pRules);
  pRest.remove_prefix(word.length);
  switch (word.kind) {
    case DateWord::Kind::None:
    case DateWord::Kind::WeekDay:
      return true;
    case DateWord::Kind::Month:
      return Add({.value = word.value, .isNamed = true});
    case DateWord::Kind::HalfDay:
      break;
  }
  if (count_ == 0 || Last().half != HalfDay::None) return false;
  Last().half = static_cast<HalfDay>(word.value);
  return true;
}

bool DateItems::ReadPictureWord(std::u16string_view& pRest, const LocaleRules& pRules) {
  const std::size_t length =
      std::max(PictureWordLength(pRest, pRules.shortDate), PictureWordLength(pRest, pRules.longDate));
  pRest.remove_prefix(length);
  return length > 0;
}

bool DateItems::ReadDelimiter(std::u16string_view& pRest, const LocaleRules& pRules) {
  const auto take = [&](std::u16string_view pDelimiter) {
    if (pDelimiter.empty() || !pRest.starts_with(pDelimiter)) return false;
    pRest.remove_prefix(pDelimiter.size());
    return true;
  };
  // A comma may open a text; no other delimiter may.
  if (take(u","sv)) {
    delimiterOpen_ = count_ > 0;
    return true;
  }
  // The locale's delimiter of dates goes before, so that a "." means what it means there. Blanks never count.
  const bool isDate = take(WithoutBlanks(pRules.dateSeparator)) || take(u"/"sv) || take(u"-"sv);
  if (count_ == 0 || !(isDate || take(WithoutBlanks(pRules.timeSeparator)) || take(u":"sv) || take(u"."sv)))
    return false;
  if (isDate && dateDelimiterOpen_) return false;
  dateDelimiterOpen_ = dateDelimiterOpen_ || isDate;
  if (!isDate) Last().isTimeGoingOn = true;
  delimiterOpen_ = true;
  return true;
}

bool DateItems::Add(DateItem pItem) {
  if (count_ == kMaxItems) return false;
  items_[count_++] = pItem;
  delimiterOpen_ = dateDelimiterOpen_ = false;
  return true;
}

}  // namespace qzbase::runtime
