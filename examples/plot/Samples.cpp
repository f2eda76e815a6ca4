#include "examples/plot/Samples.h"

#include <cmath>
#include <functional>
#include <numbers>
#include <vector>

#include "examples/plot/Plot.h"
#include "examples/plot/Symbols.h"
#include "qzbase/core/QZColor.h"
#include "qzbase/platform/GCBase.h"
#include "qzbase/runtime/NumberText.h"

using namespace qzbase;

namespace plot {

namespace {

constexpr double kWidth = 420;
constexpr double kHeight = 290;
constexpr int kColumns = 3;

struct Sample {
  Ref<CLayoutGraph> layout;
  Ref<CTable> table;
};

Ref<CLayoutGraph> NewLayout(std::u16string_view pTitle) {
  auto layout = New<CLayoutGraph>();
  layout->LetTitle(pTitle);
  for (const GraphAxis axis : {XAxis, YAxis}) {
    layout->LetAutoMin(axis, true);
    layout->LetAutoMax(axis, true);
  }
  return layout;
}

std::u16string Numbered(std::u16string_view pName, std::int32_t pNumber) {
  return std::u16string(pName) + u" " + runtime::NumberText(pNumber);
}

using Function = std::function<double(std::int32_t pCurve, double pX)>;

// A column X of whole numbers from 0 on, and columns of a function.
Ref<CTable> NewTable(std::u16string_view pName, std::int32_t pCurves, std::int32_t pRows, const Function& pFunction) {
  auto table = New<CTable>();
  table->AddCol(GCBase::NewEntryDesc(u"X", EVTDouble));
  for (std::int32_t curve = 1; curve <= pCurves; ++curve)
    table->AddCol(GCBase::NewEntryDesc(Numbered(pName, curve), EVTDouble));
  table->LetNrRows(pRows);
  for (std::int32_t row = 1; row <= pRows; ++row) {
    table->LetValue(1, row, row - 1.0);
    for (std::int32_t curve = 1; curve <= pCurves; ++curve)
      table->LetValue(curve + 1, row, pFunction(curve, row - 1.0));
  }
  return table;
}

double Wave(std::int32_t pCurve, double pX) {
  return pCurve + std::sin(pX / 3 + pCurve) / 3;
}

// Curves that differ in one field of their styles: its codes from 1 on.
Sample StyleSample(std::u16string_view pTitle, std::u16string_view pName, std::int32_t pCodes,
                   const std::function<void(TCurveStyle&, std::int32_t)>& pLetCode) {
  Sample sample{NewLayout(pTitle), NewTable(pName, pCodes, 13, Wave)};
  sample.layout->LetNrCurveStyles(pCodes);
  for (std::int32_t code = 1; code <= pCodes; ++code) {
    TCurveStyle style = CLayoutGraph::DefaultCurveStyle(code);
    pLetCode(style, code);
    sample.layout->LetCurveStyle(code, style);
  }
  return sample;
}

Sample LegendSample(std::int32_t pPosition) {
  Sample sample{NewLayout(Numbered(u"LegendPos", pPosition)), NewTable(u"Curve", 3, 31, Wave)};
  sample.layout->LetLegendPos(pPosition);
  return sample;
}

Sample BorderSample(std::u16string_view pTitle, BorderType pBorder, std::int32_t pBackColor) {
  Sample sample{NewLayout(pTitle), NewTable(u"Curve", 1, 31, Wave)};
  sample.layout->LetBorder(pBorder);
  sample.layout->LetBackColor(pBackColor);
  sample.layout->LetShowGrid(XAxis, true);
  sample.layout->LetShowGrid(YAxis, true);
  return sample;
}

Sample CursorSample(std::int32_t pMode) {
  Sample sample{NewLayout(Numbered(u"CursorMode", pMode)), NewTable(u"Curve", 1, 31, Wave)};
  sample.layout->LetCursorMode(pMode);
  sample.layout->LetAutoMax(XAxis, false);
  sample.layout->LetAxisMax(XAxis, 40);
  sample.layout->LetCursorFormat(YAxis, u"0.000");
  TLabelStyle label;
  label.BackColor = qzLightYellow;
  label.BorderWidth = 1;
  sample.layout->LetLabelStyle(BoundLabel, label);
  return sample;
}

Sample LabelSample() {
  Sample sample{NewLayout(u"Label styles"), NewTable(u"Curve", 2, 31, Wave)};
  CLayoutGraph& layout = *sample.layout;
  layout.LetLabelStyle(GraphTitle, {u"Times New Roman", 18, 1 + 2, qzWhite, qzDarkBlue, 0, 0, 0});
  layout.LetLabelStyle(Legend, {u"", 8, 8, qzDarkRed, qzLightYellow, 1, 0, 0});
  layout.LetLabelStyle(AxisTitle, {u"", 10, 4, qzDarkGreen, qzDarkGreen, 0, 0, 0});
  layout.LetLabelStyle(AxisLabel, {u"Courier New", 9, 0, qzBLACK, qzBLACK, 0, 0, 45});
  layout.LetLabelStyle(FreeLabel, {u"", 8, 2, qzDarkGrey, qzDarkGrey, 0, 0, 0});
  layout.LetLabelMode(FreeLabel, 1);
  layout.LetAxisCaption(XAxis, u"Time");
  layout.LetAxisUnit(XAxis, u"s");
  layout.LetAxisCaption(YAxis, u"Deviation");
  layout.LetAxisFormat(XAxis, u"0.00");
  sample.table->LetID(u"A free label: the table's ID");
  return sample;
}

Sample LogSample() {
  Sample sample{NewLayout(u"Y logarithmic, X reversed"), NewTable(u"Decay", 2, 31, [](std::int32_t pCurve, double pX) {
                  return 5e4 * std::exp(-pX / 3 / pCurve);
                })};
  sample.layout->LetAxisIsLog(YAxis, true);
  sample.layout->LetAxisIsReversed(XAxis, true);
  sample.layout->LetShowGrid(YAxis, true);
  return sample;
}

Sample GapSample() {
  constexpr double kGapFrom = 9;
  constexpr double kGapTo = 14;
  Sample sample{NewLayout(u"Gaps; clipped at 2.5; spacing 7"),
                NewTable(u"Curve", 2, 31, [](std::int32_t pCurve, double pX) {
                  const bool isMissing = pX == 3 || pX == 5 || (pX > kGapFrom && pX < kGapTo);
                  return isMissing ? kInvalidDouble : 2 * Wave(pCurve, pX) - 1;
                })};
  sample.layout->LetAutoMax(YAxis, false);
  sample.layout->LetAxisMax(YAxis, 2.5);
  sample.layout->LetAutoSpacing(XAxis, false);
  sample.layout->LetTickSpacing(XAxis, 7);
  return sample;
}

// Hours over midnight, and an enumeration on the other axis.
Sample DateSample() {
  constexpr double kStart = 43921.6;  // an afternoon in March 2020
  Sample sample{NewLayout(u"Dates and an enumeration"), New<CTable>()};
  sample.layout->LetAxisType(XAxis, EVTDate);
  sample.layout->LetAxisType(YAxis, EVTEnum);
  sample.layout->LetAxisFormat(YAxis, u"{Off;Low;High}");
  sample.table->AddCol(GCBase::NewEntryDesc(u"Time", EVTDate));
  sample.table->AddCol(GCBase::NewEntryDesc(u"State", EVTEnum));
  sample.table->LetNrRows(24);
  for (std::int32_t row = 1; row <= sample.table->NrRows(); ++row) {
    sample.table->LetValue(1, row, runtime::Date{kStart + row / 24.0});
    sample.table->LetValue(2, row, row / 5 % 3 + 1);
  }
  return sample;
}

std::vector<Sample> AllSamples() {
  std::vector<Sample> samples;
  samples.push_back(StyleSample(u"Pattern", u"Pattern", kLastPattern, [](TCurveStyle& pStyle, std::int32_t pCode) {
    pStyle.Pattern = pCode;
    pStyle.Color = qzDarkBlue;
    pStyle.Symbol = pCode == kNoPattern ? 2 : 1;
  }));
  samples.push_back(
      StyleSample(u"Symbol, SymbolSize 8", u"Symbol", kLastSymbol, [](TCurveStyle& pStyle, std::int32_t pCode) {
        pStyle.Symbol = pCode;
        pStyle.SymbolSize = 8;
      }));
  samples.push_back(StyleSample(u"Width and default colours", u"Width", 10,
                                [](TCurveStyle& pStyle, std::int32_t pCode) { pStyle.Width = pCode; }));
  for (std::int32_t position = 0; position <= 8; ++position) samples.push_back(LegendSample(position));
  samples.push_back(BorderSample(u"BorderNone", BorderNone, qzWhite));
  samples.push_back(BorderSample(u"Border2D", Border2D, qzLightYellow));
  samples.push_back(BorderSample(u"Border3D", Border3D, qzLightGrey));
  for (std::int32_t mode = 1; mode <= 3; ++mode) samples.push_back(CursorSample(mode));
  samples.push_back(LabelSample());
  samples.push_back(LogSample());
  samples.push_back(GapSample());
  samples.push_back(DateSample());
  return samples;
}

}  // namespace

std::string SamplesSvg() {
  const std::vector<Sample> samples = AllSamples();
  const std::size_t rows = (samples.size() + kColumns - 1) / kColumns;
  Svg svg(kColumns * kWidth, static_cast<double>(rows) * kHeight, u"Samples of graph layouts");
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double left = static_cast<double>(i % kColumns) * kWidth;
    const double top = static_cast<double>(i / kColumns) * kHeight;
    DrawGraph(svg, {left, top, left + kWidth, top + kHeight}, *samples[i].layout, *samples[i].table);
  }
  return svg.Finish();
}

}  // namespace plot
