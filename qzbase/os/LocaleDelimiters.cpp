#include "qzbase/os/LocaleDelimiters.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "qzbase/os/LocalePicture.h"

namespace qzbase::os {
namespace {

struct Block {
  char16_t first;
  char16_t last;
};

// Blanks, punctuation and the marks of the writing direction. Letters and digits delimit nothing, although words stand
// between the fields of some pictures: a delimiter has to work between any two numbers.
constexpr Block kDelimiters[] = {{u' ', u'/'},           {u':', u'@'},           {u'[', u'`'},
                                 {u'{', u'~'},           {u'\u00A0', u'\u00A9'}, {u'\u00AB', u'\u00B1'},
                                 {u'\u060C', u'\u060D'}, {u'\u066A', u'\u066D'}, {u'\u2000', u'\u206F'},
                                 {u'\u2E00', u'\u2E7F'}, {u'\u3000', u'\u3003'}, {u'\uFF0C', u'\uFF0F'}};

bool CanDelimit(char16_t pCharacter) {
  return std::any_of(std::begin(kDelimiters), std::end(kDelimiters),
                     [&](Block pBlock) { return pCharacter >= pBlock.first && pCharacter <= pBlock.last; });
}

// What stands between the first of the fields and the next one; `pOtherwise` where that is no delimiter.
std::u16string SeparatorIn(std::u16string_view pPicture, std::u16string_view pFields, std::u16string_view pOtherwise) {
  PicturePieces pieces(pPicture);
  std::u16string separator;
  bool begun = false;
  for (PicturePiece piece; pieces.Next(piece);) {
    if (piece.IsField() && begun) break;
    if (piece.IsField())
      begun = !piece.IsWeekDay() && pFields.find(piece.letter) != std::u16string_view::npos;
    else if (begun)
      separator += piece.text;
  }
  const bool isDelimiter = !separator.empty() && std::all_of(separator.begin(), separator.end(), CanDelimit) &&
                           separator.find_first_not_of(u" \u00A0\u202F") != std::u16string::npos;
  return isDelimiter ? separator : std::u16string(pOtherwise);
}

}  // namespace

void SettleDelimiters(LocaleRules& pRules) {
  pRules.dateSeparator = SeparatorIn(pRules.shortDate, u"dMy", u"/");
  pRules.timeSeparator = SeparatorIn(pRules.longTime, u"hH", u":");
  if (pRules.thousands == pRules.decimal) pRules.thousands = pRules.decimal == u"," ? u"." : u",";
  if (pRules.monetaryDecimal != pRules.thousands && pRules.monetaryThousands != pRules.decimal &&
      pRules.monetaryDecimal != pRules.monetaryThousands)
    return;
  pRules.monetaryDecimal = pRules.decimal;
  pRules.monetaryThousands = pRules.thousands;
}

void SettleMonthNames(LocaleRules& pRules) {
  if (pRules.monthsWithDay != pRules.months) return;
  pRules.monthsWithDay = {};
  pRules.shortMonthsWithDay = {};
}

}  // namespace qzbase::os
