#include "qzbase/platform/FontStyles.h"

#include <array>
#include <span>
#include <utility>

#include "qzbase/runtime/Convert.h"

namespace qzbase::ModBase {
namespace {

using runtime::NumberedMember;
using runtime::Object;
using runtime::Variant;

constexpr std::array<std::pair<NumberedMember, FontStyleBit>, 4> kFlags = {
    {{kFontBold, kBold}, {kFontItalic, kItalic}, {kFontUnderline, kUnderlined}, {kFontStrikethrough, kStriked}}};

void LetFontMember(Object& pFont, const NumberedMember& pMember, Variant pValue) {
  pFont.InvokeNumbered(pMember, runtime::CallKind::Let, {&pValue, 1});
}

}  // namespace

std::int32_t SetFontStyle(bool pIsBold, bool pIsItalic, bool pIsUnderlined, bool pIsStriked) {
  return (pIsBold ? kBold : 0) + (pIsItalic ? kItalic : 0) + (pIsUnderlined ? kUnderlined : 0) +
         (pIsStriked ? kStriked : 0);
}

Variant FontMember(Object& pFont, const NumberedMember& pMember) {
  return pFont.InvokeNumbered(pMember, runtime::CallKind::Get, {});
}

void SetFontFromFontStyle(Object& pFont, const TFontStyle& pStyle) {
  LetFontMember(pFont, kFontName, pStyle.Name);
  LetFontMember(pFont, kFontSize, pStyle.Size);
  for (const auto& [member, bit] : kFlags) LetFontMember(pFont, member, HasFontStyle(pStyle.Style, bit));
}

TFontStyle FontStyle(Object& pFont, std::int32_t pColor) {
  TFontStyle style;
  style.Name = runtime::ToText(FontMember(pFont, kFontName));
  style.Size = runtime::ToLong(FontMember(pFont, kFontSize));
  for (const auto& [member, bit] : kFlags)
    if (runtime::ToBoolean(FontMember(pFont, member))) style.Style |= bit;
  style.Color = pColor;
  return style;
}

}  // namespace qzbase::ModBase
