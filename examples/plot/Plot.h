// Draws a graph layout with the columns of a table: title, legend, axes, grid, curves, cursor, border.
//
//   CTable table;        // first column X, each further column of values a curve
//   CLayoutGraph layout;
//   std::string picture = PlotSvg(layout, table, 900, 560);
//
// Missing values are gaps, what lies outside the axes is cut off. docs/layouts.md says what the codes of a layout mean
// here. Formats of axes and cursor that are none raise error 5.
#pragma once

#include <string>

#include "examples/plot/Geometry.h"
#include "examples/plot/Svg.h"
#include "qzbase/data/CTable.h"
#include "qzbase/layout/CLayoutGraph.h"

namespace plot {

std::string PlotSvg(const qzbase::CLayoutGraph& pLayout, const qzbase::CTable& pTable, double pWidth, double pHeight);

// One graph in a part of a picture.
void DrawGraph(Svg& pSvg, const Box& pPlace, const qzbase::CLayoutGraph& pLayout, const qzbase::CTable& pTable);

}  // namespace plot
