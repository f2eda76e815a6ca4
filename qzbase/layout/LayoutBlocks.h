// The structures that layouts consist of, with their defaults and their records.
//
// An axis of a graph and one of a 3-D graph share most of their fields; a 3-D axis has no logarithm, no reversal and no
// grid, and its tick spacing is not automatic unless said.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <utility>

#include "qzbase/core/QZVarType.h"
#include "qzbase/layout/TCurveStyle.h"
#include "qzbase/layout/TLabelStyle.h"
#include "qzbase/persist/Record.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase {

struct AxisBlock3D {
  QZVarType type = EVTDouble;
  std::u16string format;  // of the labels at the ticks
  std::u16string caption;
  std::u16string unit;
  double min = 0;
  double max = 1;
  bool autoMin = false;
  bool autoMax = false;
  double tickSpacing = 0;
  bool autoSpacing = false;
};

struct AxisBlock : AxisBlock3D {
  AxisBlock() { autoSpacing = true; }

  bool isLog = false;
  bool isReversed = false;
  bool showGrid = false;
};

// How dense the mesh of a surface is along one axis.
struct MeshBlock {
  std::int32_t space = 1;
  bool show = false;
};

inline constexpr auto kSharedAxisFields =
    Fields(&AxisBlock3D::type, &AxisBlock3D::format, &AxisBlock3D::caption, &AxisBlock3D::unit, &AxisBlock3D::min,
           &AxisBlock3D::max, &AxisBlock3D::autoMin, &AxisBlock3D::autoMax);
inline constexpr auto kSpacingFields = Fields(&AxisBlock3D::tickSpacing, &AxisBlock3D::autoSpacing);

template <>
inline constexpr auto blockOf<AxisBlock3D> = Block(u"Axis#1", std::tuple_cat(kSharedAxisFields, kSpacingFields));

template <>
inline constexpr auto blockOf<AxisBlock> = Block(u"Axis#1",
                                                 std::tuple_cat(kSharedAxisFields,
                                                                Fields(&AxisBlock::isLog, &AxisBlock::isReversed),
                                                                kSpacingFields, Fields(&AxisBlock::showGrid)));

template <>
inline constexpr auto blockOf<MeshBlock> = Block(u"", Fields(&MeshBlock::space, &MeshBlock::show));

template <>
inline constexpr auto blockOf<TCurveStyle> = Block(u"Style#1", Fields(&TCurveStyle::Color, &TCurveStyle::Pattern,
                                                                      &TCurveStyle::Width, &TCurveStyle::Symbol,
                                                                      &TCurveStyle::SymbolSize));

// The colours of labels alone are saved as colours; all others are longs.
template <>
inline constexpr auto blockOf<TLabelStyle> = Block(u"Label#1",
                                                   Fields(&TLabelStyle::FontName, &TLabelStyle::FontSize,
                                                          &TLabelStyle::FontStyle, AsColor(&TLabelStyle::ForeColor),
                                                          AsColor(&TLabelStyle::BackColor), &TLabelStyle::BorderWidth,
                                                          &TLabelStyle::Orientation, &TLabelStyle::Rotation));

// The element at an index from 1. Error 9 outside.
template <class T, std::size_t kSize>
const T& At(const std::array<T, kSize>& pArray, std::int32_t pIndex) {
  if (pIndex < 1 || static_cast<std::size_t>(pIndex) > kSize)
    runtime::Raise(runtime::RuntimeError::SubscriptOutOfRange);
  return pArray[static_cast<std::size_t>(pIndex) - 1];
}
template <class T, std::size_t kSize>
T& At(std::array<T, kSize>& pArray, std::int32_t pIndex) {
  return const_cast<T&>(At(std::as_const(pArray), pIndex));
}

}  // namespace qzbase
