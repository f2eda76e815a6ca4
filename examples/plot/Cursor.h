// The cursor of a graph, which stands still in a picture: at the last point of the first curve that is in sight, with
// lines by the layout's cursor mode (docs/layouts.md) and the point's values as a label bound to it.
#pragma once

#include <vector>

#include "examples/plot/Curves.h"
#include "examples/plot/Geometry.h"
#include "examples/plot/Scale.h"
#include "examples/plot/Svg.h"
#include "qzbase/layout/CLayoutGraph.h"

namespace plot {

void DrawCursor(Svg& pSvg, const qzbase::CLayoutGraph& pLayout, const std::vector<Curve>& pCurves, const Scale& pX,
                const Scale& pY, const Box& pArea);

}  // namespace plot
