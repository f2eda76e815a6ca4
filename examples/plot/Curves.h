// The curves of a table: its first column is X, each further one of values is the Y of a curve. Columns of texts and
// objects are passed over; the style of a curve is that of its number among the curves.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "examples/plot/Geometry.h"
#include "examples/plot/Scale.h"
#include "examples/plot/Svg.h"
#include "qzbase/data/CTable.h"
#include "qzbase/layout/CLayoutGraph.h"

namespace plot {

struct Curve {
  std::u16string name;  // with its unit where the axis has none
  qzbase::TCurveStyle style;
  std::vector<Point> points;  // values; not-a-number where one is missing or, on a logarithmic axis, not positive
};

std::vector<Curve> CurvesOf(const qzbase::CLayoutGraph& pLayout, const qzbase::CTable& pTable);

// What the complete points of all curves cover, along X, and along Y as far as their X lies in a range. None where
// there is no such point.
std::optional<Range> RangeOfX(const std::vector<Curve>& pCurves);
std::optional<Range> RangeOfY(const std::vector<Curve>& pCurves, Range pOfX);

// Draws what lies in the area. Lines have gaps where values are missing; a value alone between two gaps is a dot.
void DrawCurve(Svg& pSvg, const Curve& pCurve, const Scale& pX, const Scale& pY, const Box& pArea,
               const std::string& pBack);

}  // namespace plot
