// An axis of a graph, planned first, since its labels decide how much room is left for the graph, and drawn once the
// graph's place is known. There are as many ticks as there is room for their labels; where the layout gives a spacing,
// labels that would collide are left out.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "examples/plot/AxisTicks.h"
#include "examples/plot/Geometry.h"
#include "examples/plot/Lettering.h"
#include "examples/plot/Scale.h"
#include "examples/plot/Svg.h"
#include "qzbase/layout/CLayoutGraph.h"

namespace plot {

struct Margins {
  double left = 0;
  double right = 0;
};

class Axis {
 public:
  // `pFrom` and `pTo` are the pixels of the minimum and the maximum of an axis that is not reversed.
  Axis(const qzbase::CLayoutGraph& pLayout, qzbase::GraphAxis pAxis, Range pRange, double pFrom, double pTo);

  const Scale& Values() const { return scale_; }
  // How far ticks, labels and caption reach away from the graph.
  double Depth() const;
  // How far the labels of a horizontal axis reach beyond its ends.
  Margins Overhang() const;

  void DrawGrid(Svg& pSvg, const Box& pArea) const;
  void Draw(Svg& pSvg, const Box& pArea) const;

 private:
  bool IsX() const { return axis_ == qzbase::XAxis; }
  void Plan(Range pRange, double pMost);
  double LabelLength(const Tick& pTick) const;
  // The labels that would touch the one before them.
  std::vector<std::size_t> Collisions() const;
  double LabelDepth() const;
  double CaptionDepth() const;
  void DrawTick(Svg& pSvg, const Box& pArea, const Tick& pTick) const;
  void DrawCaption(Svg& pSvg, const Box& pArea) const;

  const qzbase::CLayoutGraph& layout_;
  qzbase::GraphAxis axis_;
  double from_;
  double to_;
  Lettering labels_;
  Lettering title_;
  std::u16string caption_;
  Scale scale_;
  std::vector<Tick> ticks_;
};

}  // namespace plot
