#include "qzbase/runtime/DateWords.h"

#include "qzbase/runtime/TextCompare.h"

namespace qzbase::runtime {
namespace {

using namespace std::string_view_literals;

class WordFinder {
 public:
  WordFinder(std::u16string_view pText, DateWord::Kind pKind) : text_(pText), kind_(pKind) {}

  void Try(std::u16string_view pWord, std::int32_t pValue) {
    if (pWord.size() > best_.length && EqualName(text_.substr(0, pWord.size()), pWord))
      best_ = {kind_, pValue, pWord.size()};
  }
  void Try(std::u16string_view pWord, HalfDay pHalf) { Try(pWord, static_cast<std::int32_t>(pHalf)); }

  template <class Names>
  void TryAll(const Names& pNames) {
    for (std::size_t i = 0; i < pNames.size(); ++i) Try(pNames[i], static_cast<std::int32_t>(i) + 1);
  }

  const DateWord& Best() const { return best_; }

 private:
  std::u16string_view text_;
  DateWord::Kind kind_;
  DateWord best_;
};

}  // namespace

DateWord FindMonth(std::u16string_view pText, const LocaleRules& pRules) {
  WordFinder finder(pText, DateWord::Kind::Month);
  for (const auto* names : {&pRules.months, &pRules.monthsWithDay, &pRules.shortMonths, &pRules.shortMonthsWithDay})
    finder.TryAll(*names);
  return finder.Best();
}

DateWord FindWeekDay(std::u16string_view pText, const LocaleRules& pRules) {
  WordFinder finder(pText, DateWord::Kind::WeekDay);
  finder.TryAll(pRules.days);
  finder.TryAll(pRules.shortDays);
  return finder.Best();
}

DateWord FindHalfDay(std::u16string_view pText, const LocaleRules& pRules) {
  WordFinder finder(pText, DateWord::Kind::HalfDay);
  for (const std::u16string_view am : {std::u16string_view(pRules.am), u"am"sv, u"a"sv}) finder.Try(am, HalfDay::Am);
  for (const std::u16string_view pm : {std::u16string_view(pRules.pm), u"pm"sv, u"p"sv}) finder.Try(pm, HalfDay::Pm);
  return finder.Best();
}

DateWord FindDateWord(std::u16string_view pText, const LocaleRules& pRules) {
  DateWord best = FindMonth(pText, pRules);
  for (const auto find : {FindWeekDay, FindHalfDay})
    if (const DateWord word = find(pText, pRules); word.length > best.length) best = word;
  return best;
}

}  // namespace qzbase::runtime
