// The codes of curve styles as this host draws them; docs/layouts.md has the tables.
#pragma once

#include <cstdint>
#include <string>

#include "examples/plot/Geometry.h"
#include "examples/plot/Svg.h"
#include "qzbase/layout/TCurveStyle.h"

namespace plot {

inline constexpr std::int32_t kNoPattern = 1;
inline constexpr std::int32_t kLastPattern = 7;
inline constexpr std::int32_t kLastSymbol = 12;

// Of a value that stands alone where a line would be: a disk somewhat wider than the line.
qzbase::TCurveStyle DotStyle(const qzbase::TCurveStyle& pStyle);

bool HasLine(const qzbase::TCurveStyle& pStyle);
bool HasSymbol(const qzbase::TCurveStyle& pStyle);

// Draws path data as the line of a curve.
void DrawLine(Svg& pSvg, const qzbase::TCurveStyle& pStyle, const std::string& pPath);

// Symbols of one style gather in path data and are drawn together, open ones filled with the colour `pBack`.
std::string SymbolPath(const qzbase::TCurveStyle& pStyle, Point pAt);
void DrawSymbols(Svg& pSvg, const qzbase::TCurveStyle& pStyle, const std::string& pPath, const std::string& pBack);

// Path data: a pen put down, a line from there.
std::string MoveTo(Point pPoint);
std::string LineTo(Point pPoint);

}  // namespace plot
