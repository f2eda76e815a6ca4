#include "qzbase/text/NumberDelims.h"

#include <algorithm>

namespace qzbase::ModConvert {

constexpr char16_t kPoint = u'.';

std::u16string_view LocalizedNumber(std::u16string_view pText, bool pLocalized, ShortText& pRoom,
                                    const runtime::LocaleRules& pRules) {
  const std::u16string_view decimal = WindowsDecimalDelim(pRules);
  if (pLocalized || decimal.starts_with(kPoint) || pText.find(kPoint) == std::u16string_view::npos) return pText;
  for (std::size_t at = 0; (at = pText.find(kPoint)) != std::u16string_view::npos; pText.remove_prefix(at + 1))
    pRoom.Append(pText.substr(0, at)).Append(decimal);
  return pRoom.Append(pText).Text();
}

void DelocalizeNumber(std::u16string& pText, const runtime::LocaleRules& pRules) {
  const std::u16string_view decimal = WindowsDecimalDelim(pRules);
  if (!decimal.empty()) std::replace(pText.begin(), pText.end(), decimal.front(), kPoint);
}

}  // namespace qzbase::ModConvert
