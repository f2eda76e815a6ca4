#include "qzbase/runtime/DateText.h"

#include "qzbase/runtime/DateFields.h"

namespace qzbase::runtime {

std::u16string DateText(Date pDate, const LocaleRules& pRules, DateTextParts pParts) {
  const DateParts parts = SplitDate(pDate);
  std::u16string text;
  switch (pParts) {
    case DateTextParts::Both:
      AppendGeneralDate(text, parts, pRules);
      break;
    case DateTextParts::DateOnly:
      AppendPicture(text, pRules.shortDate, parts, pRules);
      break;
    case DateTextParts::TimeOnly:
      AppendPicture(text, pRules.longTime, parts, pRules);
      break;
  }
  return text;
}

}  // namespace qzbase::runtime
