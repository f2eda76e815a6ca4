#include "examples/plot/Plot.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "examples/plot/Axis.h"
#include "examples/plot/Colors.h"
#include "examples/plot/Cursor.h"
#include "examples/plot/Curves.h"
#include "examples/plot/Legend.h"
#include "examples/plot/Lettering.h"
#include "examples/plot/Scale.h"

using namespace qzbase;

namespace plot {

namespace {

constexpr double kMargin = 12;

void DrawBox(Svg& pSvg, const Box& pBox, const std::string& pFill, const std::string& pStroke) {
  pSvg.Add("rect", {{"x", pBox.left},
                    {"y", pBox.top},
                    {"width", pBox.Width()},
                    {"height", pBox.Height()},
                    {"fill", pFill},
                    {"stroke", pStroke}});
}

void DrawEdge(Svg& pSvg, Point pStart, Point pCorner, Point pEnd, const char* pColor) {
  const auto text = [](Point pPoint) { return Svg::Number(pPoint.x) + "," + Svg::Number(pPoint.y) + " "; };
  pSvg.Add("polyline", {{"points", text(pStart) + text(pCorner) + text(pEnd)},
                        {"fill", "none"},
                        {"stroke", pColor},
                        {"stroke-width", 2.0}});
}

// The background with its border. A border that was not chosen is none.
void DrawBackground(Svg& pSvg, const Box& pPlace, const CLayoutGraph& pLayout) {
  DrawBox(pSvg, pPlace, ColorText(pLayout.BackColor()), "none");
  const Box edge = pPlace.Shrunk(1);
  const Point upperRight{edge.right, edge.top};
  const Point lowerLeft{edge.left, edge.bottom};
  if (pLayout.Border() == Border2D) DrawBox(pSvg, edge.Shrunk(-0.5), "none", ColorText(qzBLACK));
  if (pLayout.Border() != Border3D) return;
  // Sunken: the light falls from the upper left.
  DrawEdge(pSvg, lowerLeft, {edge.left, edge.top}, upperRight, "#808080");
  DrawEdge(pSvg, lowerLeft, {edge.right, edge.bottom}, upperRight, "#dddddd");
}

// Over the graph; takes its lines from the room.
void DrawTitle(Svg& pSvg, Box& pRoom, const CLayoutGraph& pLayout) {
  constexpr std::size_t kMostLines = 3;
  constexpr double kGap = 6;
  if (pLayout.Title().empty() || !IsShown(pLayout, GraphTitle, true)) return;
  const Lettering lettering = LetteringOf(pLayout, GraphTitle);
  for (const std::u16string& line : lettering.Wrap(pLayout.Title(), pRoom.Width(), kMostLines)) {
    const double height = lettering.TurnedHeight(line);
    DrawText(pSvg, lettering, line, {pRoom.MiddleX(), pRoom.top + height / 2}, {0.5, 0.5});
    pRoom.top += height;
  }
  pRoom.top += kGap;
}

// The table's identifier in the lower right corner; takes its line from the room.
void DrawFreeLabel(Svg& pSvg, Box& pRoom, const CLayoutGraph& pLayout, const CTable& pTable) {
  if (pTable.ID().empty() || !IsShown(pLayout, FreeLabel, false)) return;
  const Lettering lettering = LetteringOf(pLayout, FreeLabel);
  const std::u16string text = lettering.Cut(pTable.ID(), pRoom.Width());
  const double height = lettering.TurnedHeight(text);
  const double middle = pRoom.right - lettering.TurnedWidth(text) / 2;
  DrawText(pSvg, lettering, text, {middle, pRoom.bottom - height / 2}, {0.5, 0.5});
  pRoom.bottom -= height;
}

struct Ranges {
  Range x;
  Range y;
};

// What the axes leave of the room: each one's labels decide about the other's length, so the first is asked twice.
Box GraphArea(const CLayoutGraph& pLayout, const Ranges& pRanges, Box pRoom) {
  constexpr double kSmallest = 20;
  const double lineHeight = LetteringOf(pLayout, AxisLabel).LineHeight();
  pRoom.top += lineHeight / 2;
  const double bottom = pRoom.bottom - Axis(pLayout, XAxis, pRanges.x, pRoom.left, pRoom.right).Depth();
  const double depth = Axis(pLayout, YAxis, pRanges.y, bottom, pRoom.top).Depth();
  const Axis x(pLayout, XAxis, pRanges.x, pRoom.left + depth, pRoom.right);
  const double left = pRoom.left + std::max(depth, x.Overhang().left);
  return {left, pRoom.top, std::max(pRoom.right - x.Overhang().right, left + kSmallest),
          std::max(pRoom.bottom - x.Depth(), pRoom.top + kSmallest)};
}

void DrawNoValues(Svg& pSvg, const CLayoutGraph& pLayout, const Box& pArea) {
  DrawText(pSvg, LetteringOf(pLayout, AxisTitle), u"no values", {pArea.MiddleX(), pArea.MiddleY()}, {0.5, 0.5});
}

}  // namespace

std::string PlotSvg(const CLayoutGraph& pLayout, const CTable& pTable, double pWidth, double pHeight) {
  Svg svg(pWidth, pHeight, pLayout.Title());
  DrawGraph(svg, {0, 0, pWidth, pHeight}, pLayout, pTable);
  return svg.Finish();
}

void DrawGraph(Svg& pSvg, const Box& pPlace, const CLayoutGraph& pLayout, const CTable& pTable) {
  const std::vector<Curve> curves = CurvesOf(pLayout, pTable);
  const std::optional<Range> ofX = RangeOfX(curves);
  Ranges ranges{AxisRange(pLayout, XAxis, ofX), {}};
  ranges.y = AxisRange(pLayout, YAxis, RangeOfY(curves, ranges.x));

  DrawBackground(pSvg, pPlace, pLayout);
  Box room = pPlace.Shrunk(kMargin);
  DrawTitle(pSvg, room, pLayout);
  DrawFreeLabel(pSvg, room, pLayout, pTable);
  const LegendBox legend(pLayout, curves, room);
  const Box area = GraphArea(pLayout, ranges, room);
  const Axis x(pLayout, XAxis, ranges.x, area.left, area.right);
  const Axis y(pLayout, YAxis, ranges.y, area.bottom, area.top);

  if (pLayout.ShowGrid(XAxis)) x.DrawGrid(pSvg, area);
  if (pLayout.ShowGrid(YAxis)) y.DrawGrid(pSvg, area);
  DrawBox(pSvg, area, "none", LetteringOf(pLayout, AxisLabel).color);
  const std::string back = ColorText(pLayout.BackColor());
  for (const Curve& curve : curves) DrawCurve(pSvg, curve, x.Values(), y.Values(), area, back);
  if (!ofX) DrawNoValues(pSvg, pLayout, area);
  x.Draw(pSvg, area);
  y.Draw(pSvg, area);
  DrawCursor(pSvg, pLayout, curves, x.Values(), y.Values(), area);
  legend.Draw(pSvg, area);
}

}  // namespace plot
