// How the texts of a label look: its label style with the host's defaults for what the style leaves open, and the room
// that a text takes. A file cannot measure texts: widths are those of a usual sans-serif font, estimated.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "examples/plot/Geometry.h"
#include "examples/plot/Svg.h"
#include "qzbase/layout/CLayoutGraph.h"

namespace plot {

struct Lettering {
  std::string family;
  double size = 12;            // pixels
  std::int32_t fontStyle = 0;  // bits: 1 bold, 2 italic, 4 underlined, 8 struck through
  std::string color;
  std::string back;   // empty: none
  double border = 0;  // pixels
  double angle = 0;   // degrees counter-clockwise

  double LineHeight() const { return size * 1.25; }
  double Width(std::u16string_view pText) const;
  // What the text takes once it is turned by the angle.
  double TurnedWidth(std::u16string_view pText) const;
  double TurnedHeight(std::u16string_view pText) const;
  // The text, or as much of it as there is room for and "...".
  std::u16string Cut(std::u16string_view pText, double pRoom) const;
  // Broken at blanks into lines, the last of them cut.
  std::vector<std::u16string> Wrap(std::u16string_view pText, double pRoom, std::size_t pMostLines) const;
};

// `pAngle` is the angle of a label whose style says none.
Lettering LetteringOf(const qzbase::CLayoutGraph& pLayout, qzbase::GraphLabel pLabel, double pAngle = 0);

// Whether a label is shown, by its label mode; `pUsually` where that leaves it to the host.
bool IsShown(const qzbase::CLayoutGraph& pLayout, qzbase::GraphLabel pLabel, bool pUsually);

// The point of the text's box that is put at a place and turned about: 0 is its left or top, 0.5 its middle, 1 its
// right or bottom.
struct Anchor {
  double x = 0.5;
  double y = 0.5;
};

void DrawText(Svg& pSvg, const Lettering& pLettering, std::u16string_view pText, Point pAt, Anchor pAnchor);

}  // namespace plot
