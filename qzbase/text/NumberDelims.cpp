#include "qzbase/text/NumberDelims.h"

#include <algorithm>

#include "qzbase/text/ModString.h"

namespace qzbase::ModConvert {

constexpr std::u16string_view kPoint = u".";

std::u16string_view LocalizedNumber(std::u16string_view pText, bool pLocalized, std::u16string& pRoom,
                                    const runtime::LocaleRules& pRules) {
  const std::u16string_view decimal = WindowsDecimalDelim(pRules);
  if (pLocalized || decimal == kPoint || pText.find(kPoint) == std::u16string_view::npos) return pText;
  return pRoom = ModString::ReplaceAll(pText, kPoint, decimal);
}

void DelocalizeNumber(std::u16string& pText, const runtime::LocaleRules& pRules) {
  const std::u16string_view decimal = WindowsDecimalDelim(pRules);
  if (!decimal.empty() && decimal != kPoint) std::replace(pText.begin(), pText.end(), decimal.front(), kPoint.front());
}

}  // namespace qzbase::ModConvert
