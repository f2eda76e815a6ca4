#include "qzbase/runtime/DateItems.h"

#include <algorithm>

#include "qzbase/runtime/TextCompare.h"

namespace qzbase::runtime {
namespace {

using namespace std::string_view_literals;

// More than any year; longer numbers stay at it.
constexpr std::int32_t kTooLarge = 100000;

bool IsDigit(char16_t pChar) {
  return pChar >= u'0' && pChar <= u'9';
}

bool IsBlank(char16_t pChar) {
  return pChar == u' ' || (pChar >= u'\t' && pChar <= u'\r') || pChar == u'\u0085' || pChar == u'\u00A0' ||
         pChar == u'\u1680' || (pChar >= u'\u2000' && pChar <= u'\u200A') || pChar == u'\u2028' || pChar == u'\u2029' ||
         pChar == u'\u202F' || pChar == u'\u205F' || pChar == u'\u3000';
}

struct DateWord {
  enum class Kind : std::uint8_t { None, Month, WeekDay, HalfDay } kind = Kind::None;
  std::int32_t value = 0;  // 1 to 12; `HalfDay`
  std::size_t length = 0;
};

// Finds the longest word at the start of a text. Letters A to Z ignore case, others are exact.
class WordFinder {
 public:
  explicit WordFinder(std::u16string_view pText) : text_(pText) {}

  void Try(std::u16string_view pWord, DateWord::Kind pKind, std::int32_t pValue = 0) {
    if (pWord.size() > best_.length && EqualName(text_.substr(0, pWord.size()), pWord))
      best_ = {pKind, pValue, pWord.size()};
  }

  template <class Names>
  void TryAll(const Names& pNames, DateWord::Kind pKind) {
    for (std::size_t i = 0; i < pNames.size(); ++i) Try(pNames[i], pKind, static_cast<std::int32_t>(i) + 1);
  }

  const DateWord& Best() const { return best_; }

 private:
  std::u16string_view text_;
  DateWord best_;
};

DateWord FindWord(std::u16string_view pText, const LocaleRules& pRules) {
  WordFinder finder(pText);
  finder.TryAll(pRules.months, DateWord::Kind::Month);
  finder.TryAll(pRules.shortMonths, DateWord::Kind::Month);
  finder.TryAll(pRules.days, DateWord::Kind::WeekDay);
  finder.TryAll(pRules.shortDays, DateWord::Kind::WeekDay);
  // The English marks are understood everywhere.
  for (const std::u16string_view am : {std::u16string_view(pRules.am), u"am"sv, u"a"sv})
    finder.Try(am, DateWord::Kind::HalfDay, static_cast<std::int32_t>(HalfDay::Am));
  for (const std::u16string_view pm : {std::u16string_view(pRules.pm), u"pm"sv, u"p"sv})
    finder.Try(pm, DateWord::Kind::HalfDay, static_cast<std::int32_t>(HalfDay::Pm));
  return finder.Best();
}

}  // namespace

bool DateItems::Read(std::u16string_view pText, const LocaleRules& pRules) {
  while (!pText.empty()) {
    if (IsBlank(pText[0]))
      pText.remove_prefix(1);
    else if (IsDigit(pText[0]) ? !ReadNumber(pText) : !ReadWord(pText, pRules) && !ReadDelimiter(pText, pRules))
      return false;
  }
  return !delimiterOpen_;
}

bool DateItems::ReadNumber(std::u16string_view& pRest) {
  std::int32_t value = 0;
  for (; !pRest.empty() && IsDigit(pRest[0]); pRest.remove_prefix(1))
    value = std::min(value * 10 + (pRest[0] - u'0'), kTooLarge);
  return Add({.value = value});
}

bool DateItems::ReadWord(std::u16string_view& pRest, const LocaleRules& pRules) {
  if (pRest[0] < u'A') return false;  // delimiters, the most frequent case
  const DateWord word = FindWord(pRest, pRules);
  pRest.remove_prefix(word.length);
  switch (word.kind) {
    case DateWord::Kind::None:
      return false;
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
  // The locale's delimiter of dates goes before, so that a "." means what it means there.
  const bool isDate = take(pRules.dateSeparator) || take(u"/"sv) || take(u"-"sv);
  if (count_ == 0 || !(isDate || take(pRules.timeSeparator) || take(u":"sv) || take(u"."sv))) return false;
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
