// Fonts as sets of bits and records, and as objects.
//
// A font object is the system's standard font or one like it, with the members Name, Size, Bold, Italic, Underline and
// Strikethrough. Those of automation hosts are called by the numbers that these members have in the standard font, all
// others by name.
#pragma once

#include <cstdint>

#include "qzbase/platform/TFontStyle.h"
#include "qzbase/runtime/Object.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::ModBase {

// Do not change the bits: they are in people's files.
enum FontStyleBit : std::int32_t { kBold = 1, kItalic = 2, kUnderlined = 4, kStriked = 8 };

std::int32_t SetFontStyle(bool pIsBold, bool pIsItalic, bool pIsUnderlined, bool pIsStriked);

constexpr bool HasFontStyle(std::int32_t pStyle, FontStyleBit pBit) noexcept {
  return (pStyle & pBit) != 0;
}

// The members of a font, read and set in this order. The numbers are the platform's.
inline constexpr runtime::NumberedMember kFontName{0, u"Name"};
inline constexpr runtime::NumberedMember kFontSize{2, u"Size"};
inline constexpr runtime::NumberedMember kFontBold{3, u"Bold"};
inline constexpr runtime::NumberedMember kFontItalic{4, u"Italic"};
inline constexpr runtime::NumberedMember kFontUnderline{5, u"Underline"};
inline constexpr runtime::NumberedMember kFontStrikethrough{6, u"Strikethrough"};

runtime::Variant FontMember(runtime::Object& pFont, const runtime::NumberedMember& pMember);

// Name, size and bits of the style; a font has no colour.
void SetFontFromFontStyle(runtime::Object& pFont, const TFontStyle& pStyle);

// The font with a colour. Sizes are whole, rounded half to even: error 6 outside 32 bits.
TFontStyle FontStyle(runtime::Object& pFont, std::int32_t pColor = 0);

}  // namespace qzbase::ModBase
