// What the layouts of 2-D and 3-D graphs have in common: a title, a background, a border and three axes. `Axis` is the
// block of an axis.
//
// Nothing is checked but the axis, which is XAxis, YAxis or ZAxis: error 9 for any other.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/core/QZColor.h"
#include "qzbase/layout/BorderType.h"
#include "qzbase/layout/GraphAxis.h"
#include "qzbase/layout/LayoutBlocks.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

// The border of a new layout, which is none of the border types: not yet chosen.
inline constexpr auto kNoBorderChosen = static_cast<BorderType>(-1);

template <class Axis>
class LayoutFrame : public runtime::Object {
 public:
  const std::u16string& Title() const noexcept { return title_; }
  void LetTitle(std::u16string_view pTitle) { title_ = pTitle; }
  std::int32_t BackColor() const noexcept { return backColor_; }
  void LetBackColor(std::int32_t pBackColor) noexcept { backColor_ = pBackColor; }
  BorderType Border() const noexcept { return border_; }
  void LetBorder(BorderType pBorder) noexcept { border_ = pBorder; }

  QZVarType AxisType(GraphAxis pAxis) const { return At(axes_, pAxis).type; }
  void LetAxisType(GraphAxis pAxis, QZVarType pType) { At(axes_, pAxis).type = pType; }
  // The output format of the labels at the ticks.
  const std::u16string& AxisFormat(GraphAxis pAxis) const { return At(axes_, pAxis).format; }
  void LetAxisFormat(GraphAxis pAxis, std::u16string_view pFormat) { At(axes_, pAxis).format = pFormat; }
  const std::u16string& AxisCaption(GraphAxis pAxis) const { return At(axes_, pAxis).caption; }
  void LetAxisCaption(GraphAxis pAxis, std::u16string_view pCaption) { At(axes_, pAxis).caption = pCaption; }
  const std::u16string& AxisUnit(GraphAxis pAxis) const { return At(axes_, pAxis).unit; }
  void LetAxisUnit(GraphAxis pAxis, std::u16string_view pUnit) { At(axes_, pAxis).unit = pUnit; }
  double AxisMin(GraphAxis pAxis) const { return At(axes_, pAxis).min; }
  void LetAxisMin(GraphAxis pAxis, double pMin) { At(axes_, pAxis).min = pMin; }
  double AxisMax(GraphAxis pAxis) const { return At(axes_, pAxis).max; }
  void LetAxisMax(GraphAxis pAxis, double pMax) { At(axes_, pAxis).max = pMax; }
  // Whether the ends and the spacing of the ticks are the drawing host's to choose.
  bool AutoMax(GraphAxis pAxis) const { return At(axes_, pAxis).autoMax; }
  void LetAutoMax(GraphAxis pAxis, bool pAutoMax) { At(axes_, pAxis).autoMax = pAutoMax; }
  bool AutoMin(GraphAxis pAxis) const { return At(axes_, pAxis).autoMin; }
  void LetAutoMin(GraphAxis pAxis, bool pAutoMin) { At(axes_, pAxis).autoMin = pAutoMin; }
  double TickSpacing(GraphAxis pAxis) const { return At(axes_, pAxis).tickSpacing; }
  void LetTickSpacing(GraphAxis pAxis, double pTickSpacing) { At(axes_, pAxis).tickSpacing = pTickSpacing; }
  bool AutoSpacing(GraphAxis pAxis) const { return At(axes_, pAxis).autoSpacing; }
  void LetAutoSpacing(GraphAxis pAxis, bool pAutoSpacing) { At(axes_, pAxis).autoSpacing = pAutoSpacing; }

 protected:
  std::array<Axis, 3> axes_;
  std::u16string title_;
  std::int32_t backColor_ = qzWhite;
  BorderType border_ = kNoBorderChosen;
};

}  // namespace qzbase
