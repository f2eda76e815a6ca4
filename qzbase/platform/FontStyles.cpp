#include "qzbase/platform/FontStyles.h"

#include "qzbase/runtime/Convert.h"

namespace qzbase::ModBase {

std::int32_t SetFontStyle(bool pIsBold, bool pIsItalic, bool pIsUnderlined, bool pIsStriked) {
  return (pIsBold ? kBold : 0) + (pIsItalic ? kItalic : 0) + (pIsUnderlined ? kUnderlined : 0) +
         (pIsStriked ? kStriked : 0);
}

void SetFontFromFontStyle(runtime::Object& pFont, const TFontStyle& pStyle) {
  pFont.Let(u"Name", pStyle.Name);
  pFont.Let(u"Size", pStyle.Size);
  pFont.Let(u"Bold", HasFontStyle(pStyle.Style, kBold));
  pFont.Let(u"Italic", HasFontStyle(pStyle.Style, kItalic));
  pFont.Let(u"Underline", HasFontStyle(pStyle.Style, kUnderlined));
  pFont.Let(u"Strikethrough", HasFontStyle(pStyle.Style, kStriked));
}

TFontStyle FontStyle(runtime::Object& pFont, std::int32_t pColor) {
  const auto isSet = [&](std::u16string_view pName) { return runtime::ToBoolean(pFont.Get(pName)); };
  TFontStyle style;
  style.Name = runtime::ToText(pFont.Get(u"Name"));
  style.Size = runtime::ToLong(pFont.Get(u"Size"));
  style.Style = SetFontStyle(isSet(u"Bold"), isSet(u"Italic"), isSet(u"Underline"), isSet(u"Strikethrough"));
  style.Color = pColor;
  return style;
}

}  // namespace qzbase::ModBase
