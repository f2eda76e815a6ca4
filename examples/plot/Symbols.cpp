#include "examples/plot/Symbols.h"

#include <algorithm>
#include <array>
#include <numbers>
#include <span>

#include "examples/plot/Colors.h"

using namespace qzbase;

namespace plot {

namespace {

// Lengths of dash, gap, dash ... of a line one pixel wide.
constexpr std::array<std::array<double, 6>, kLastPattern + 1> kDashes = {{
    {},
    {},                  // 1 no line
    {},                  // 2 solid
    {6, 4},              // 3 dashed
    {1, 3},              // 4 dotted
    {7, 3, 1, 3},        // 5 dash, dot
    {7, 3, 1, 3, 1, 3},  // 6 dash, dot, dot
    {12, 5},             // 7 long dashes
}};

// Corners about the middle, of a symbol that is two wide and high.
constexpr std::array<Point, 4> kSquare = {{{-0.9, -0.9}, {0.9, -0.9}, {0.9, 0.9}, {-0.9, 0.9}}};
constexpr std::array<Point, 3> kTriangle = {{{0, -1.1}, {1, 0.8}, {-1, 0.8}}};
constexpr std::array<Point, 4> kDiamond = {{{0, -1.2}, {1.2, 0}, {0, 1.2}, {-1.2, 0}}};
// Each two of these are a stroke.
constexpr std::array<Point, 4> kPlus = {{{-1, 0}, {1, 0}, {0, -1}, {0, 1}}};
constexpr std::array<Point, 4> kCross = {{{-0.8, -0.8}, {0.8, 0.8}, {-0.8, 0.8}, {0.8, -0.8}}};
constexpr std::array<Point, 6> kStar = {{{0, -1}, {0, 1}, {-0.87, -0.5}, {0.87, 0.5}, {-0.87, 0.5}, {0.87, -0.5}}};

struct Shape {
  enum Kind { kNone, kDisk, kPolygon, kStrokes } kind = kNone;
  bool isFilled = false;
  std::span<const Point> points{};
};

// By the code of the symbol.
constexpr std::array<Shape, kLastSymbol + 1> kShapes = {{
    {},
    {},
    {Shape::kDisk, true},
    {Shape::kDisk, false},
    {Shape::kPolygon, true, kSquare},
    {Shape::kPolygon, false, kSquare},
    {Shape::kPolygon, true, kTriangle},
    {Shape::kPolygon, false, kTriangle},
    {Shape::kPolygon, true, kDiamond},
    {Shape::kPolygon, false, kDiamond},
    {Shape::kStrokes, false, kPlus},
    {Shape::kStrokes, false, kCross},
    {Shape::kStrokes, false, kStar},
}};

const Shape& ShapeOf(const TCurveStyle& pStyle) {
  const bool isKnown = pStyle.Symbol > 0 && pStyle.Symbol <= kLastSymbol;
  return kShapes[isKnown ? static_cast<std::size_t>(pStyle.Symbol) : 0];
}

std::int32_t WidthOf(const TCurveStyle& pStyle) {
  return std::clamp(pStyle.Width, 1, 20);
}

double SymbolSizeOf(const TCurveStyle& pStyle) {
  constexpr std::int32_t kUsual = 5;
  return pStyle.SymbolSize > 0 ? std::min(pStyle.SymbolSize, 50) : kUsual;
}

std::string DashText(const TCurveStyle& pStyle) {
  std::string text;
  if (pStyle.Pattern < 0 || pStyle.Pattern > kLastPattern) return text;
  for (const double length : kDashes[static_cast<std::size_t>(pStyle.Pattern)])
    if (length > 0) text += (text.empty() ? "" : " ") + Svg::Number(length * WidthOf(pStyle));
  return text;
}

std::string Pair(Point pPoint) {
  return Svg::Number(pPoint.x) + " " + Svg::Number(pPoint.y);
}

std::string Disk(Point pMiddle, double pRadius) {
  const std::string radius = Svg::Number(pRadius);
  const auto arc = [&](double pX) { return "A" + radius + " " + radius + " 0 1 0 " + Pair({pX, pMiddle.y}); };
  return MoveTo({pMiddle.x - pRadius, pMiddle.y}) + arc(pMiddle.x + pRadius) + arc(pMiddle.x - pRadius) + "Z";
}

}  // namespace

TCurveStyle DotStyle(const TCurveStyle& pStyle) {
  constexpr std::int32_t kDisk = 2;
  TCurveStyle style = pStyle;
  style.Symbol = kDisk;
  style.SymbolSize = 2 * WidthOf(pStyle) + 1;
  return style;
}

bool HasLine(const TCurveStyle& pStyle) {
  return pStyle.Pattern != kNoPattern;
}

bool HasSymbol(const TCurveStyle& pStyle) {
  return ShapeOf(pStyle).kind != Shape::kNone;
}

void DrawLine(Svg& pSvg, const TCurveStyle& pStyle, const std::string& pPath) {
  if (pPath.empty()) return;
  pSvg.Add("path", {{"d", pPath},
                    {"fill", "none"},
                    {"stroke", ColorText(pStyle.Color)},
                    {"stroke-width", static_cast<double>(WidthOf(pStyle))},
                    {"stroke-linejoin", "round"},
                    {"stroke-dasharray", DashText(pStyle)}});
}

std::string SymbolPath(const TCurveStyle& pStyle, Point pAt) {
  const Shape& shape = ShapeOf(pStyle);
  const double half = SymbolSizeOf(pStyle) / 2;
  if (shape.kind == Shape::kDisk) return Disk(pAt, half);
  std::string path;
  for (std::size_t i = 0; i < shape.points.size(); ++i) {
    const Point point{pAt.x + half * shape.points[i].x, pAt.y + half * shape.points[i].y};
    const bool isStart = i == 0 || (shape.kind == Shape::kStrokes && i % 2 == 0);
    path += isStart ? MoveTo(point) : LineTo(point);
  }
  return shape.kind == Shape::kPolygon ? path + "Z" : path;
}

void DrawSymbols(Svg& pSvg, const TCurveStyle& pStyle, const std::string& pPath, const std::string& pBack) {
  if (pPath.empty()) return;
  const Shape& shape = ShapeOf(pStyle);
  const std::string color = ColorText(pStyle.Color);
  pSvg.Add("path", {{"d", pPath},
                    {"fill", shape.isFilled                  ? color
                             : shape.kind == Shape::kStrokes ? "none"
                                                             : pBack},
                    {"stroke", color},
                    {"stroke-width", 1.0}});
}

std::string MoveTo(Point pPoint) {
  return "M" + Pair(pPoint);
}

std::string LineTo(Point pPoint) {
  return "L" + Pair(pPoint);
}

}  // namespace plot
