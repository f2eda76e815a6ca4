#include "qzbase/text/PlainNumber.h"

#include "qzbase/runtime/NumberReader.h"

namespace qzbase::ModConvert {

bool IsPlainNumber(std::u16string_view pText) {
  static const runtime::LocaleRules kPlainRules;
  constexpr std::u16string_view kAllowed = u"0123456789.-Ee";
  double number = 0;
  return pText.find_first_not_of(kAllowed) == std::u16string_view::npos &&
         runtime::ReadNumber(pText, number, kPlainRules) == runtime::ReadResult::Read;
}

}  // namespace qzbase::ModConvert
