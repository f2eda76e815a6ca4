// The legend of a graph: a line of its curve and the curve's name for each entry, at one of the layout's positions
// (docs/layouts.md). Outside the graph it takes room away from it, beside or in rows above or below; inside it stands
// in a corner upon the graph.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "examples/plot/Curves.h"
#include "examples/plot/Geometry.h"
#include "examples/plot/Lettering.h"
#include "examples/plot/Svg.h"
#include "qzbase/layout/CLayoutGraph.h"

namespace plot {

class LegendBox {
 public:
  // Takes what the legend needs from `pRoom`. Entries that find no room are left out, "..." in their place.
  LegendBox(const qzbase::CLayoutGraph& pLayout, const std::vector<Curve>& pCurves, Box& pRoom);

  // `pArea` is the place of the graph in what was left of the room.
  void Draw(Svg& pSvg, const Box& pArea) const;

 private:
  struct Entry {
    std::u16string name;
    const qzbase::TCurveStyle* style;  // none for what stands in place of others
    Point place;                       // of its upper left corner, from that of the legend
  };

  void PutBelowEachOther(double pMostHeight);
  void PutInRows(double pMostWidth, double pMostHeight);
  void LeaveOut(std::size_t pFirst);
  double EntryWidth(const Entry& pEntry) const;
  double RowHeight() const { return lettering_.LineHeight() + 2; }
  Point Corner(const Box& pArea) const;

  std::int32_t position_;
  Lettering lettering_;
  double border_ = 0;
  std::string back_;
  Box room_;  // before the legend took its part
  std::vector<Entry> entries_;
  double width_ = 0;
  double height_ = 0;
};

}  // namespace plot
