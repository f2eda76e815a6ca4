// Fonts as sets of bits and records, and as objects.
//
// A font object is any object with the properties Name, Size, Bold, Italic, Underline and Strikethrough, such as the
// system's standard font.
#pragma once

#include <cstdint>

#include "qzbase/platform/TFontStyle.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::ModBase {

// Do not change the bits: they are in people's files.
enum FontStyleBit : std::int32_t { kBold = 1, kItalic = 2, kUnderlined = 4, kStriked = 8 };

std::int32_t SetFontStyle(bool pIsBold, bool pIsItalic, bool pIsUnderlined, bool pIsStriked);

constexpr bool HasFontStyle(std::int32_t pStyle, FontStyleBit pBit) noexcept {
  return (pStyle & pBit) != 0;
}

// Name, size and bits of the style; a font has no colour.
void SetFontFromFontStyle(runtime::Object& pFont, const TFontStyle& pStyle);

// The font with a colour. Sizes are whole, rounded half to even: error 6 outside 32 bits.
TFontStyle FontStyle(runtime::Object& pFont, std::int32_t pColor = 0);

}  // namespace qzbase::ModBase
