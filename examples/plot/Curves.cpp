#include "examples/plot/Curves.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "examples/plot/DateTicks.h"
#include "examples/plot/Symbols.h"
#include "qzbase/core/QZVarType.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/text/GCConvert.h"
#include "qzbase/text/GCStrings.h"

using namespace qzbase;

namespace plot {

namespace {

constexpr double kMissing = std::numeric_limits<double>::quiet_NaN();

bool IsComplete(Point pPoint) {
  return std::isfinite(pPoint.x) && std::isfinite(pPoint.y);
}

bool HoldsValues(const TEntryDesc& pDesc) {
  const QZVarType type = pDesc.VarType();
  return GCConvert::TypeIsNumeric(type) || type == EVTDate || type == EVTEnum;
}

// The values of a column on an axis. What is missing, whatever its type calls so, is the invalid double at first.
std::vector<double> ColumnValues(const CTable& pTable, std::int32_t pColumn, bool pIsLog) {
  const Ref<CDblVector> numbers = GCConvert::VectorToDblVector(*pTable.ColRef(pColumn));
  const QZVarType type = pTable.ColDescRef(pColumn)->VarType();
  std::vector<double> values;
  values.reserve(static_cast<std::size_t>(numbers->Size()));
  for (std::int32_t row = 1; row <= numbers->Size(); ++row) {
    const double number = numbers->Value(row);
    const bool isMissing = number == kInvalidDouble || !std::isfinite(number) ||
                           (type == EVTEnum && number == kInvalidEnum) || (pIsLog && !(number > 0));
    values.push_back(isMissing ? kMissing : type == EVTDate ? EvenDays(number) : number);
  }
  return values;
}

std::optional<Range> Cover(const std::vector<Curve>& pCurves, Range pOfX, double Point::*pValue) {
  std::optional<Range> range;
  for (const Curve& curve : pCurves)
    for (const Point& point : curve.points) {
      if (!IsComplete(point) || !pOfX.Holds(point.x)) continue;
      if (!range) range = Range{point.*pValue, point.*pValue};
      range->Include(point.*pValue);
    }
  return range;
}

// Cuts a line to what lies in the area; false where nothing does.
bool CutLine(Point& pStart, Point& pEnd, const Box& pArea) {
  const double dx = pEnd.x - pStart.x;
  const double dy = pEnd.y - pStart.y;
  double first = 0;
  double last = 1;
  // Where the line, which goes on by `pSlope`, is `pRoom` away from an edge.
  const auto cut = [&](double pSlope, double pRoom) {
    if (pSlope < 0)
      first = std::max(first, pRoom / pSlope);
    else if (pSlope > 0)
      last = std::min(last, pRoom / pSlope);
    else if (pRoom < 0)
      last = -1;
  };
  cut(-dx, pStart.x - pArea.left);
  cut(dx, pArea.right - pStart.x);
  cut(-dy, pStart.y - pArea.top);
  cut(dy, pArea.bottom - pStart.y);
  if (first > last) return false;
  pEnd = {pStart.x + last * dx, pStart.y + last * dy};
  pStart = {pStart.x + first * dx, pStart.y + first * dy};
  return true;
}

std::string LinePath(const std::vector<Point>& pPoints, const Box& pArea) {
  std::string path;
  Point pen{kMissing, kMissing};
  for (std::size_t i = 1; i < pPoints.size(); ++i) {
    Point start = pPoints[i - 1];
    Point end = pPoints[i];
    if (!IsComplete(start) || !IsComplete(end) || !CutLine(start, end, pArea)) continue;
    if (start.x != pen.x || start.y != pen.y) path += MoveTo(start);
    path += LineTo(end);
    pen = end;
  }
  return path;
}

bool IsAlone(const std::vector<Point>& pPoints, std::size_t pAt) {
  return (pAt == 0 || !IsComplete(pPoints[pAt - 1])) && (pAt + 1 == pPoints.size() || !IsComplete(pPoints[pAt + 1]));
}

}  // namespace

std::vector<Curve> CurvesOf(const CLayoutGraph& pLayout, const CTable& pTable) {
  std::vector<Curve> curves;
  if (pTable.NrCols() == 0) return curves;
  const std::vector<double> x = ColumnValues(pTable, 1, pLayout.AxisIsLog(XAxis));
  for (std::int32_t column = 2; column <= pTable.NrCols(); ++column) {
    const TEntryDesc& desc = *pTable.ColDescRef(column);
    if (!HoldsValues(desc)) continue;
    const std::vector<double> y = ColumnValues(pTable, column, pLayout.AxisIsLog(YAxis));
    Curve& curve = curves.emplace_back();
    curve.name = desc.Name();
    if (pLayout.AxisUnit(YAxis).empty()) curve.name += GCStrings::FormatUnit(desc.Unit());
    curve.style = pLayout.CurveStyle(static_cast<std::int32_t>(curves.size()));
    curve.points.reserve(y.size());
    for (std::size_t i = 0; i < std::min(x.size(), y.size()); ++i) curve.points.push_back({x[i], y[i]});
  }
  return curves;
}

std::optional<Range> RangeOfX(const std::vector<Curve>& pCurves) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  return Cover(pCurves, {-kLargest, kLargest}, &Point::x);
}

std::optional<Range> RangeOfY(const std::vector<Curve>& pCurves, Range pOfX) {
  return Cover(pCurves, pOfX, &Point::y);
}

void DrawCurve(Svg& pSvg, const Curve& pCurve, const Scale& pX, const Scale& pY, const Box& pArea,
               const std::string& pBack) {
  std::vector<Point> points;
  points.reserve(pCurve.points.size());
  for (const Point& value : pCurve.points) points.push_back({pX.Pixel(value.x), pY.Pixel(value.y)});
  const TCurveStyle dot = DotStyle(pCurve.style);
  std::string symbols;
  std::string dots;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (!IsComplete(points[i]) || !pX.Shows(pCurve.points[i].x) || !pY.Shows(pCurve.points[i].y)) continue;
    symbols += SymbolPath(pCurve.style, points[i]);
    if (!HasSymbol(pCurve.style) && IsAlone(points, i)) dots += SymbolPath(dot, points[i]);
  }
  if (HasLine(pCurve.style)) {
    DrawLine(pSvg, pCurve.style, LinePath(points, pArea));
    DrawSymbols(pSvg, dot, dots, pBack);
  }
  DrawSymbols(pSvg, pCurve.style, symbols, pBack);
}

}  // namespace plot
