// How a 2-D graph is to be drawn: title, colours, border, legend, cursor, axes, curves and labels. It draws nothing;
// a host's graph control reads it.
//
//   CLayoutGraph layout;
//   layout.LetAxisCaption(XAxis, u"Time");
//   layout.LetNrCurveStyles(3);
//   layout.LetCurveStyle(3, style);         // beyond `NrCurveStyles` an assignment does nothing
//
// Values are stored as they are given; the meaning of `LegendPos`, `CursorMode`, `LabelMode`, patterns and symbols is
// the host's. Indices that are not there raise error 9: axes 1 to 3, label modes 1 to 3 (GraphTitle, Legend and
// FreeLabel), label styles 1 to 6, curve styles below 1.
//
// Record: tag "GraphLayout#1"; title, border, legend position, back colour, grid colour; three axes; the number of
// curve styles and each of them; cursor mode; three cursor formats; three label modes; six label styles; tag
// "\GraphLayout". What was read before an error stays.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/layout/CurveStyles.h"
#include "qzbase/layout/GraphLabel.h"
#include "qzbase/layout/LayoutFrame.h"

namespace qzbase {

class CLayoutGraph final : public LayoutFrame<AxisBlock> {
 public:
  static std::int32_t DefaultColor(std::int32_t pIndex) { return qzbase::DefaultColor(pIndex); }

  std::int32_t GridColor() const noexcept { return gridColor_; }
  void LetGridColor(std::int32_t pGridColor) noexcept { gridColor_ = pGridColor; }
  std::int32_t LegendPos() const noexcept { return legendPos_; }
  void LetLegendPos(std::int32_t pLegendPos) noexcept { legendPos_ = pLegendPos; }
  std::int32_t CursorMode() const noexcept { return cursorMode_; }
  void LetCursorMode(std::int32_t pCursorMode) noexcept { cursorMode_ = pCursorMode; }
  const std::u16string& CursorFormat(GraphAxis pAxis) const { return At(cursorFormat_, pAxis); }
  void LetCursorFormat(GraphAxis pAxis, std::u16string_view pFormat) { At(cursorFormat_, pAxis) = pFormat; }
  std::int32_t LabelMode(GraphLabel pGraphLabel) const { return At(labelMode_, pGraphLabel); }
  void LetLabelMode(GraphLabel pGraphLabel, std::int32_t pMode) { At(labelMode_, pGraphLabel) = pMode; }

  bool AxisIsLog(GraphAxis pAxis) const { return At(axes_, pAxis).isLog; }
  void LetAxisIsLog(GraphAxis pAxis, bool pIsLog) { At(axes_, pAxis).isLog = pIsLog; }
  bool AxisIsReversed(GraphAxis pAxis) const { return At(axes_, pAxis).isReversed; }
  void LetAxisIsReversed(GraphAxis pAxis, bool pIsReversed) { At(axes_, pAxis).isReversed = pIsReversed; }
  bool ShowGrid(GraphAxis pAxis) const { return At(axes_, pAxis).showGrid; }
  void LetShowGrid(GraphAxis pAxis, bool pShowGrid) { At(axes_, pAxis).showGrid = pShowGrid; }

  // See CurveStyles.h.
  std::int32_t NrCurveStyles() const noexcept { return curveStyles_.Count(); }
  void LetNrCurveStyles(std::int32_t pCount) { curveStyles_.LetCount(pCount); }
  TCurveStyle CurveStyle(std::int32_t pIndex) const { return curveStyles_.Style(pIndex); }
  void LetCurveStyle(std::int32_t pIndex, const TCurveStyle& pStyle) { curveStyles_.LetStyle(pIndex, pStyle); }
  static TCurveStyle DefaultCurveStyle(std::int32_t pIndex) { return qzbase::DefaultCurveStyle(pIndex); }

  const TLabelStyle& LabelStyle(GraphLabel pGraphLabel) const { return At(labelStyles_, pGraphLabel); }
  void LetLabelStyle(GraphLabel pGraphLabel, const TLabelStyle& pStyle) { At(labelStyles_, pGraphLabel) = pStyle; }

  // Field after field in the order of the record: an error in the number of curve styles (CurveStyles.h) leaves the
  // title to the axes copied, and the rest as it was.
  void CopyFrom(const CLayoutGraph& pSource);
  runtime::Ref<CLayoutGraph> GetCopy() const;
  bool IsEqual(const CLayoutGraph& pCompare) const;
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false) const;
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 private:
  struct Lists;

  std::int32_t gridColor_ = qzBLACK;
  std::int32_t legendPos_ = 1;
  std::int32_t cursorMode_ = 0;
  CurveStyles curveStyles_;
  std::array<std::u16string, 3> cursorFormat_;
  std::array<std::int32_t, 3> labelMode_{};
  std::array<TLabelStyle, 6> labelStyles_;
};

}  // namespace qzbase
