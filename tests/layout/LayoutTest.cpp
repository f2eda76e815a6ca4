#include <cstring>
#include <limits>

#include <gtest/gtest.h>

#include "qzbase/layout/CLayoutGraph.h"
#include "qzbase/layout/CLayoutGraph3D.h"
#include "qzbase/layout/CLayoutTable.h"
#include "qzbase/runtime/Compare.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

template <class Layout>
Bytes Saved(Layout& pLayout) {
  CBuffer buffer;
  pLayout.SaveToBuffer(&buffer);
  const auto array = buffer.ByteArray();
  return Bytes(array.begin(), array.end() - 1);
}

Bytes Golden(const std::string& pName) {
  const std::string file = ReadTestFile("golden/" + pName + ".bin");
  return Bytes(file.begin(), file.end());
}

// Saves as its golden file says, loads back from it, and copies.
template <class Layout>
void CheckRecord(Layout& pLayout, const std::string& pName) {
  EXPECT_EQ(ToHex(Saved(pLayout)), ToHex(Golden(pName)));
  CBuffer buffer;
  buffer.LetByteArray(Storage(Golden(pName)));
  Layout loaded;
  loaded.LoadFromBuffer(&buffer);
  EXPECT_TRUE(loaded.IsEqual(pLayout));
  EXPECT_EQ(Saved(loaded), Saved(pLayout));
  const auto copy = pLayout.GetCopy();
  EXPECT_TRUE(copy->IsEqual(pLayout));
  EXPECT_EQ(Saved(*copy), Saved(pLayout));
  EXPECT_FALSE(Layout().IsEqual(pLayout));
}

// Every field differs from its default, those of an axis on one axis at least.
template <class Layout>
void FillFrame(Layout& pLayout) {
  pLayout.LetTitle(u"T\u00E4");
  pLayout.LetBackColor(11);
  pLayout.LetBorder(Border3D);
  for (const GraphAxis axis : {XAxis, YAxis, ZAxis}) {
    pLayout.LetAxisType(axis, axis == YAxis ? EVTDate : EVTLong);
    pLayout.LetAxisFormat(axis, u"0.0");
    pLayout.LetAxisCaption(axis, u"C");
    pLayout.LetAxisUnit(axis, u"m");
    pLayout.LetAxisMin(axis, axis);
    pLayout.LetAxisMax(axis, 10 * axis);
    pLayout.LetAutoMin(axis, axis == XAxis);
    pLayout.LetAutoMax(axis, axis != XAxis);
    pLayout.LetTickSpacing(axis, 0.25);
    pLayout.LetAutoSpacing(axis, axis == ZAxis);
  }
}

TEST(LayoutGraph, NewOne) {
  const CLayoutGraph layout;
  EXPECT_EQ(layout.Border(), -1);
  EXPECT_EQ(layout.BackColor(), qzWhite);
  EXPECT_EQ(layout.GridColor(), qzBLACK);
  EXPECT_EQ(layout.LegendPos(), 1);
  for (const GraphAxis axis : {XAxis, YAxis, ZAxis})
    EXPECT_TRUE(layout.AxisType(axis) == EVTDouble && layout.AxisMin(axis) == 0 && layout.AxisMax(axis) == 1 &&
                layout.AutoSpacing(axis) && !layout.AutoMin(axis) && !layout.ShowGrid(axis));
  EXPECT_EQ(layout.CurveStyle(1), (TCurveStyle{2, 1, qzBlue, 1, 5}));
  EXPECT_EQ(layout.LabelStyle(AxisLabel), TLabelStyle());
}

TEST(LayoutGraph, ColoursRepeat) {
  const std::pair<std::int32_t, std::int32_t> rows[] = {{1, qzBlue}, {4, qzCyan},   {10, qzLightRed}, {11, qzBlue},
                                                        {0, qzBlue}, {-1, qzBLACK}, {-9, qzBlue}};
  for (const auto& [index, color] : rows) EXPECT_EQ(CLayoutGraph::DefaultColor(index), color) << index;
}

TEST(LayoutGraph, CurveStylesGrowByTheirNumberAlone) {
  CLayoutGraph layout;
  const TCurveStyle style{9, 8, 7, 6, 5};
  layout.LetCurveStyle(3, style);  // beyond the list
  EXPECT_EQ(layout.CurveStyle(3), CLayoutGraph::DefaultCurveStyle(3));
  layout.LetNrCurveStyles(3);
  layout.LetCurveStyle(3, style);
  layout.LetCurveStyle(1, style);
  EXPECT_EQ(layout.CurveStyle(2), CLayoutGraph::DefaultCurveStyle(2));
  layout.LetNrCurveStyles(1);
  layout.LetNrCurveStyles(1'000'000'000);
  EXPECT_EQ(layout.CurveStyle(1), style);
  EXPECT_EQ(layout.CurveStyle(3).Color, qzRed);
  EXPECT_TRUE(layout.GetCopy()->IsEqual(layout));

  layout.LetNrCurveStyles(0);
  EXPECT_EQ(layout.CurveStyle(1).Color, qzBlue);
  EXPECT_EQ(ErrorOf([&] { layout.CurveStyle(0); }), kSubscript);
  EXPECT_EQ(ErrorOf([&] { layout.LetCurveStyle(-1, style); }), kSubscript);
  EXPECT_EQ(ErrorOf([&] { CLayoutGraph::DefaultColor(std::numeric_limits<std::int32_t>::min()); }), kOverflow);
  layout.LetNrCurveStyles(-2);
  EXPECT_EQ(layout.CurveStyle(-1).Color, qzBLACK);
  EXPECT_EQ(ErrorOf([&] { layout.LetNrCurveStyles(1); }), kSubscript);
  EXPECT_EQ(layout.NrCurveStyles(), -2);
}

TEST(LayoutGraph, IndicesThatAreNotThere) {
  CLayoutGraph layout;
  CLayoutGraph3D layout3D;
  EXPECT_EQ(ErrorOf([&] { layout.LabelMode(BoundLabel); }), kSubscript);
  EXPECT_EQ(ErrorOf([&] { layout.LabelStyle(GLUndefined); }), kSubscript);
  EXPECT_EQ(ErrorOf([&] { layout.LetAxisMin(static_cast<GraphAxis>(4), 1); }), kSubscript);
  EXPECT_EQ(ErrorOf([&] { layout3D.LetMeshShow(ZAxis, true); }), kSubscript);
  EXPECT_EQ(ErrorOf([&] { layout3D.AxisUnit(GAUndefined); }), kSubscript);
}

TEST(LayoutGraph, Record) {
  CLayoutGraph layout;
  FillFrame(layout);
  layout.LetGridColor(12);
  layout.LetLegendPos(13);
  layout.LetCursorMode(14);
  layout.LetNrCurveStyles(2);
  layout.LetCurveStyle(2, {21, 22, 23, 24, 25});
  for (const GraphAxis axis : {XAxis, YAxis, ZAxis}) {
    layout.LetAxisIsLog(axis, axis == YAxis);
    layout.LetAxisIsReversed(axis, axis != YAxis);
    layout.LetShowGrid(axis, axis == XAxis);
    layout.LetCursorFormat(axis, u"f");
    layout.LetLabelMode(static_cast<GraphLabel>(axis), 30 + axis);
  }
  layout.LetLabelStyle(FreeLabel, {u"Arial", 9.5, 1, 2, 3, 4, 5, 6});
  CheckRecord(layout, "CLayoutGraph");

  const auto other = layout.GetCopy();
  other->LetTitle(u"t\u00C4");
  EXPECT_TRUE(other->IsEqual(layout));
  other->LetBorder(Border2D);
  EXPECT_FALSE(other->IsEqual(layout));
  TLabelStyle style = layout.LabelStyle(FreeLabel);
  style.FontName = u"ARIAL";
  other->CopyFrom(layout);
  other->LetLabelStyle(FreeLabel, style);
  EXPECT_TRUE(other->IsEqual(layout));
}

TEST(LayoutGraph3D, RecordLeavesOutTheBackColourAndComparisonTheBorder) {
  CLayoutGraph3D layout;
  EXPECT_TRUE(layout.GraphType() == GTSurface && layout.ShowColour() && layout.NrLevels() == 40 &&
              layout.RotationAngle() == -35 && layout.ElevationAngle() == 25 && layout.MeshSpace(YAxis) == 1 &&
              layout.Border() == -1 && !layout.AutoSpacing(XAxis));
  FillFrame(layout);
  layout.LetBackColor(qzWhite);
  layout.LetGraphType(GTBoth);
  layout.LetShowColour(false);
  layout.LetShowContour(true);
  layout.LetShowSolid(true);
  layout.LetNrLevels(7);
  layout.LetRotationAngle(1.5);
  layout.LetElevationAngle(2.5);
  layout.LetMeshSpace(XAxis, 3);
  layout.LetMeshShow(YAxis, true);
  CheckRecord(layout, "CLayoutGraph3D");

  const auto other = layout.GetCopy();
  other->LetBorder(BorderNone);
  EXPECT_TRUE(other->IsEqual(layout));
  other->LetBackColor(0);
  EXPECT_FALSE(other->IsEqual(layout));
  EXPECT_EQ(other->GetCopy()->BackColor(), 0);
  CBuffer buffer;
  layout.SaveToBuffer(&buffer);
  other->LoadFromBuffer(&buffer);
  EXPECT_EQ(other->BackColor(), 0);
  EXPECT_EQ(other->Border(), Border3D);
}

TEST(LayoutTable, InfosAreAddressedByTheTextOfANumber) {
  CLayoutTable layout;
  EXPECT_TRUE(layout.Border() == BorderNone && layout.CaptionColour() == qzLightGrey && layout.NrGenericInfos() == 0);
  EXPECT_EQ(*layout.AddGenericInfo(u"7", EVTLong, 42).If<std::int32_t>(), 1);
  layout.AddGenericInfo(u"7", EVTLong, 43);
  layout.AddGenericInfo(u"-5", EVTString, u"x");
  const auto value = [&](std::int32_t pID) { return *layout.GetGenericInfoValue(pID, 0).If<std::int32_t>(); };
  EXPECT_EQ(value(7), 42);
  EXPECT_EQ(value(1), 0);
  layout.LetGenericInfoValue(-5, 8);
  EXPECT_EQ(value(-5), 8);
  EXPECT_EQ(ErrorOf([&] { layout.LetGenericInfoValue(2, 0); }), kSubscript);

  CEntryDescs descs;
  descs.LetSize(1);
  EXPECT_EQ(layout.SetColDescs(descs), 0);
  descs.DescRef(1)->LetID(u"changed");
  EXPECT_EQ(layout.ColDescsRef()->DescRef(1)->ID(), u"");
  layout.LetBorder(Border2D);
  layout.LetCaptionColour(5);
  layout.LetGenericInfoValue(-5, u"x");
  CheckRecord(layout, "CLayoutTable");
  layout.ClearGenericInfos();
  EXPECT_EQ(layout.NrGenericInfos(), 0);
}

}  // namespace
}  // namespace qzbase::tests
