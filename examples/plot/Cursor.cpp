#include "examples/plot/Cursor.h"

#include <algorithm>
#include <optional>

#include "examples/plot/AxisTicks.h"
#include "examples/plot/Lettering.h"

using namespace qzbase;

namespace plot {

namespace {

enum Mode : std::int32_t { kNoCursor, kCrossHair, kVertical, kHorizontal };

std::optional<Point> LastInSight(const std::vector<Curve>& pCurves, const Scale& pX, const Scale& pY) {
  if (pCurves.empty()) return {};
  const std::vector<Point>& points = pCurves.front().points;
  const auto last = std::find_if(points.rbegin(), points.rend(),
                                 [&](const Point& pPoint) { return pX.Shows(pPoint.x) && pY.Shows(pPoint.y); });
  return last == points.rend() ? std::nullopt : std::optional(*last);
}

std::u16string Reading(const CLayoutGraph& pLayout, GraphAxis pAxis, double pValue) {
  const std::u16string& format = pLayout.CursorFormat(pAxis);
  return AxisText(pLayout, pAxis, pValue, format.empty() ? pLayout.AxisFormat(pAxis) : format);
}

void DrawHair(Svg& pSvg, Point pStart, Point pEnd, const std::string& pColor) {
  pSvg.Add("line", {{"x1", pStart.x},
                    {"y1", pStart.y},
                    {"x2", pEnd.x},
                    {"y2", pEnd.y},
                    {"stroke", pColor},
                    {"stroke-dasharray", "2 2"}});
}

}  // namespace

void DrawCursor(Svg& pSvg, const CLayoutGraph& pLayout, const std::vector<Curve>& pCurves, const Scale& pX,
                const Scale& pY, const Box& pArea) {
  constexpr double kAway = 8;
  const std::int32_t mode = pLayout.CursorMode();
  const std::optional<Point> value = LastInSight(pCurves, pX, pY);
  if (!value || mode <= kNoCursor || mode > kHorizontal) return;
  const Lettering lettering = LetteringOf(pLayout, BoundLabel);
  const Point at{pX.Pixel(value->x), pY.Pixel(value->y)};
  if (mode != kHorizontal) DrawHair(pSvg, {at.x, pArea.top}, {at.x, pArea.bottom}, lettering.color);
  if (mode != kVertical) DrawHair(pSvg, {pArea.left, at.y}, {pArea.right, at.y}, lettering.color);
  const std::u16string text = Reading(pLayout, XAxis, value->x) + u"; " + Reading(pLayout, YAxis, value->y);
  // On the side where there is more room.
  const double toLeft = at.x > pArea.MiddleX() ? 1 : 0;
  const double upwards = at.y > pArea.MiddleY() ? 1 : 0;
  const Point beside{at.x + (toLeft > 0 ? -kAway : kAway), at.y + (upwards > 0 ? -kAway : kAway)};
  DrawText(pSvg, lettering, text, beside, {toLeft, upwards});
}

}  // namespace plot
