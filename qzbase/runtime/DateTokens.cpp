#include "qzbase/runtime/DateTokens.h"

#include <algorithm>
#include <cstddef>

#include "qzbase/runtime/TextCompare.h"

namespace qzbase::runtime {
namespace {

// Of tokens that begin alike the longer one comes first.
constexpr DateToken kTokens[] = {
    {u"dddddd", DateRole::LongDate},
    {u"ddddd", DateRole::ShortDate},
    {u"dddd", DateRole::DayField, DateField::DayName},
    {u"ddd", DateRole::DayField, DateField::DayShortName},
    {u"dd", DateRole::DayField, DateField::DayTwoDigits},
    {u"d", DateRole::DayField, DateField::Day},
    {u"mmmm", DateRole::MonthName, DateField::MonthName, DateField::MonthNameWithDay},
    {u"mmm", DateRole::MonthName, DateField::MonthShortName, DateField::MonthShortNameWithDay},
    {u"mm", DateRole::Month, DateField::MonthTwoDigits, DateField::MinuteTwoDigits},
    {u"m", DateRole::Month, DateField::Month, DateField::Minute},
    {u"yyyyy", DateRole::Invalid},
    {u"yyyy", DateRole::Field, DateField::Year},
    {u"yy", DateRole::Field, DateField::YearTwoDigits},
    {u"y", DateRole::DayOfYear},
    {u"hh", DateRole::Hour, DateField::HourTwoDigits, DateField::Hour12TwoDigits},
    {u"h", DateRole::Hour, DateField::Hour, DateField::Hour12},
    {u"nn", DateRole::Field, DateField::MinuteTwoDigits},
    {u"n", DateRole::Field, DateField::Minute},
    {u"ss", DateRole::Field, DateField::SecondTwoDigits},
    {u"s", DateRole::Field, DateField::Second},
    {u"q", DateRole::Quarter},
    {u"ww", DateRole::Week},
    {u"w", DateRole::WeekDay},
    {u"ttttt", DateRole::LongTime},
    {u"c", DateRole::General},
    {u"am/pm", DateRole::HalfDayAsSpelled},
    {u"ampm", DateRole::HalfDayOfLocale},
    {u"a/p", DateRole::HalfDayAsSpelled},
    {u"/", DateRole::DateSeparator},
    {u":", DateRole::TimeSeparator},
    {u";", DateRole::End},
};

// Cuts `pCount` characters and the quote or backslash before them off the front.
PatternPiece CutQuoted(std::u16string_view& pRest, std::size_t pCount) {
  const PatternPiece piece{nullptr, pRest.substr(1, pCount), true};
  pRest.remove_prefix(std::min(pRest.size(), pCount + (pRest[0] == u'"' ? 2 : 1)));
  return piece;
}

}  // namespace

PatternPiece CutPiece(std::u16string_view& pRest) {
  if (pRest[0] == u'"') return CutQuoted(pRest, std::min(pRest.find(u'"', 1), pRest.size()) - 1);
  if (pRest[0] == u'\\') return CutQuoted(pRest, 1);
  const char16_t first = pRest[0] >= u'A' && pRest[0] <= u'Z' ? static_cast<char16_t>(pRest[0] + 32) : pRest[0];
  const auto token = std::find_if(std::begin(kTokens), std::end(kTokens), [&](const DateToken& pToken) {
    return pToken.letters[0] == first && EqualName(pRest.substr(0, pToken.letters.size()), pToken.letters);
  });
  const bool isToken = token != std::end(kTokens);
  const PatternPiece piece{isToken ? token : nullptr, pRest.substr(0, isToken ? token->letters.size() : 1)};
  pRest.remove_prefix(piece.text.size());
  return piece;
}

}  // namespace qzbase::runtime
