#include "examples/plot/Colors.h"

#include <array>
#include <cstdio>

#include "qzbase/core/QZColor.h"

namespace plot {

namespace {

// From qzScrollBars on, as 0x00BBGGRR.
constexpr std::array<std::int32_t, 16> kSystemColors = {
    0xC8C8C8, 0x808040, 0xD0B090, 0xDCD0C0, 0xF0F0F0, 0xFFFFFF, 0x646464, 0x000000,
    0x000000, 0x000000, 0xB4B4B4, 0xDCDCDC, 0xABABAB, 0xD07820, 0xFFFFFF, 0xF0F0F0,
};

std::int32_t Resolved(std::int32_t pColor) {
  if (pColor >= 0) return pColor & 0xFFFFFF;
  const auto number = static_cast<std::uint32_t>(pColor) - static_cast<std::uint32_t>(qzbase::qzScrollBars);
  return number < kSystemColors.size() ? kSystemColors[number] : qzbase::qzBLACK;
}

}  // namespace

std::string ColorText(std::int32_t pColor) {
  const auto color = static_cast<unsigned>(Resolved(pColor));
  std::array<char, 8> text;
  std::snprintf(text.data(), text.size(), "#%02x%02x%02x", color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
  return text.data();
}

}  // namespace plot
