// What the platform's order of texts says about single characters, apart from the letters of a language: the order of
// punctuation and symbols, and which characters weigh less than all others.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qzbase::os {

// Blanks, punctuation, quotation marks, currencies, mathematical signs and symbols, in ascending order; all of them
// come before the digits, and these before the letters.
inline constexpr std::u16string_view kSymbolOrder =
    u" \u00A0\t\n\v\f\r\u2000\u2001\u2004\u2005\u2006\u2007\u2008\u2009\u200A\u200B\u2028\u2029"
    u"!\"#$%&()*,./:;?@[\\]^_`{|}~"
    u"\u00A1\u00A6\u00A8\u00AF\u00B4\u00B8\u00BF"
    u"\u2016\u2017\u2018\u2019\u201A\u201B\u201C\u201D\u201E\u201F\u2032\u2035\u2038\u2039\u203A\u203D\u203E\u203F"
    u"\u00A2\u00A3\u00A4\u00A5\u20B1\u20A0\u20A3\u20A4\u20A5\u20A6\u20A7\u20A8\u20A9\u20AF\u20B0\u20AE\u20A2\u20AC"
    u"\u20A1\u20B2\u20B3\u20B4\u20B5\u20AA\u20AB\u20B9\u20BA"
    u"+\u2044<=>\u00B1\u00AB\u00BB\u00D7\u00F7"
    u"\u00A7\u00A9\u00AC\u00AE\u00B0\u00B5\u00B6\u00B7"
    u"\u2025\u2026\u2020\u2021\u2022\u2023\u2030\u203B\u2040\u2041\u2042";

// Controls, apostrophe, hyphens and dashes, in ascending order. They decide only between texts that are equal without
// them.
inline constexpr std::u16string_view kLightOrder =
    u"\u0001\u0002\u0003\u0004\u0005\u0006\u0007\u0008\u000E\u000F\u0010\u0011\u0012\u0013\u0014\u0015\u0016\u0017"
    u"\u0018\u0019\u001A\u001B\u001C\u001D\u001E\u001F\u007F"
    u"'-\u2212\u2010\u2011\u2027\u2043\u2012\u2013\u2014\u2015";

// The same for one character of ASCII, for comparing without the locale library.
struct AsciiOrder {
  std::uint8_t primary = 0;  // 0: weighs nothing or is light
  bool upper = false;
};

inline constexpr std::array<AsciiOrder, 128> kAsciiOrder = [] {
  std::array<AsciiOrder, 128> order{};
  std::uint8_t next = 1;
  for (const char16_t symbol : kSymbolOrder)
    if (symbol < 128) order[symbol].primary = next++;
  for (std::size_t c = '0'; c <= '9'; ++c) order[c].primary = next++;
  for (std::size_t c = 'a'; c <= 'z'; ++c) {
    order[c].primary = order[c - 'a' + 'A'].primary = next++;
    order[c - 'a' + 'A'].upper = true;
  }
  return order;
}();

// Compares the light characters alone, of texts that are equal otherwise: the further ahead one stands the later the
// text sorts; in the same place the characters' order decides.
int CompareLight(std::u16string_view pLeft, std::u16string_view pRight) noexcept;

// The whole comparison of two texts of ASCII characters, for locales that leave A to Z in their common order.
int CompareAscii(std::u16string_view pLeft, std::u16string_view pRight, bool pIgnoreCase) noexcept;

bool IsAscii(std::u16string_view pText) noexcept;

}  // namespace qzbase::os
