// Colours of layouts (qzbase/core/QZColor.h) as a picture has them.
#pragma once

#include <cstdint>
#include <string>

namespace plot {

// "#rrggbb". A file knows no user's settings: system colours are those of a light desktop, the rest that is no colour
// is black.
std::string ColorText(std::int32_t pColor);

}  // namespace plot
