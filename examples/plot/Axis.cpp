#include "examples/plot/Axis.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

#include "examples/plot/Colors.h"
#include "qzbase/core/QZColor.h"
#include "qzbase/text/GCStrings.h"

using namespace qzbase;

namespace plot {

namespace {

constexpr double kTickLength = 5;
constexpr double kMinorLength = 3;
constexpr double kGap = 4;         // between ticks and labels
constexpr double kCaptionGap = 6;  // between labels and caption

// The room of a caption that runs across its axis.
constexpr double kCaptionAcross = 110;

std::u16string CaptionOf(const CLayoutGraph& pLayout, GraphAxis pAxis) {
  const std::u16string& unit = pLayout.AxisUnit(pAxis);
  const std::u16string& caption = pLayout.AxisCaption(pAxis);
  return caption.empty() ? unit : caption + GCStrings::FormatUnit(unit);
}

double Sine(double pDegrees) {
  return std::sin(pDegrees * std::numbers::pi / 180);
}

// A turned label ends or begins at its tick, others are centred below it.
bool IsTurned(double pSine) {
  return std::abs(pSine) > 0.1;
}

void DrawSegment(Svg& pSvg, Point pStart, Point pEnd, const std::string& pColor, double pOpacity = 1) {
  pSvg.Add("line", {{"x1", pStart.x},
                    {"y1", pStart.y},
                    {"x2", pEnd.x},
                    {"y2", pEnd.y},
                    {"stroke", pColor},
                    {"stroke-opacity", pOpacity < 1 ? Svg::Number(pOpacity) : ""}});
}

}  // namespace

Axis::Axis(const CLayoutGraph& pLayout, GraphAxis pAxis, Range pRange, double pFrom, double pTo)
    : layout_(pLayout),
      axis_(pAxis),
      from_(pFrom),
      to_(pTo),
      labels_(LetteringOf(pLayout, AxisLabel)),
      title_(LetteringOf(pLayout, AxisTitle, pAxis == XAxis ? 0 : 90)),
      scale_(pRange, false, pFrom, pTo) {
  constexpr double kUsualRoom = 48;  // along a horizontal axis
  constexpr double kUsualLines = 2.5;
  constexpr double kFewer = 0.8;
  if (pLayout.AxisIsReversed(pAxis)) std::swap(from_, to_);
  if (!IsX()) labels_.angle = 0;
  const double length = std::abs(to_ - from_);
  const bool runsAlong = (std::abs(Sine(title_.angle)) > 0.7) != IsX();
  caption_ = title_.Cut(CaptionOf(pLayout, pAxis), runsAlong ? length : kCaptionAcross);
  double most = std::max(1.0, length / (IsX() ? kUsualRoom : kUsualLines * labels_.LineHeight()));
  Plan(pRange, most);
  while (most > 1 && pLayout.AutoSpacing(pAxis) && !Collisions().empty()) Plan(pRange, most *= kFewer);
  for (std::vector<std::size_t> at = Collisions(); !at.empty(); at = Collisions()) ticks_[at.front()].text.clear();
}

void Axis::Plan(Range pRange, double pMost) {
  TickPlan plan = PlanTicks(layout_, axis_, pRange, pMost);
  const bool isLog = layout_.AxisIsLog(axis_) && layout_.AxisType(axis_) != EVTDate;
  scale_ = Scale(plan.range, isLog, from_, to_);
  ticks_ = std::move(plan.ticks);
}

double Axis::LabelLength(const Tick& pTick) const {
  if (!IsX()) return labels_.LineHeight();
  const double sine = Sine(labels_.angle);
  const double turned = labels_.TurnedWidth(pTick.text) + 2 * kGap;
  return IsTurned(sine) ? std::min(turned, labels_.LineHeight() / std::abs(sine)) : turned;
}

std::vector<std::size_t> Axis::Collisions() const {
  std::vector<std::size_t> collisions;
  double last = std::numeric_limits<double>::quiet_NaN();
  double lastLength = 0;
  for (std::size_t i = 0; i < ticks_.size(); ++i) {
    if (ticks_[i].text.empty()) continue;
    const double pixel = scale_.Pixel(ticks_[i].value);
    const double length = LabelLength(ticks_[i]);
    if (std::abs(pixel - last) < (length + lastLength) / 2)
      collisions.push_back(i);
    else {
      last = pixel;
      lastLength = length;
    }
  }
  return collisions;
}

double Axis::LabelDepth() const {
  double depth = 0;
  for (const Tick& tick : ticks_)
    if (!tick.text.empty())
      depth = std::max(depth, IsX() ? labels_.TurnedHeight(tick.text) : labels_.TurnedWidth(tick.text));
  return depth;
}

double Axis::CaptionDepth() const {
  if (caption_.empty()) return 0;
  return IsX() ? title_.TurnedHeight(caption_) : title_.TurnedWidth(caption_);
}

double Axis::Depth() const {
  const double caption = CaptionDepth();
  return kTickLength + kGap + LabelDepth() + (caption > 0 ? kCaptionGap + caption : 0);
}

Margins Axis::Overhang() const {
  Margins margins;
  if (!IsX()) return margins;
  const double sine = Sine(labels_.angle);
  for (const Tick& tick : ticks_) {
    if (tick.text.empty()) continue;
    const double pixel = scale_.Pixel(tick.value);
    const double width = labels_.TurnedWidth(tick.text);
    const double left = IsTurned(sine) ? (sine > 0 ? width : 0) : width / 2;
    margins.left = std::max(margins.left, left - (pixel - std::min(from_, to_)));
    margins.right = std::max(margins.right, width - left - (std::max(from_, to_) - pixel));
  }
  return margins;
}

void Axis::DrawGrid(Svg& pSvg, const Box& pArea) const {
  constexpr double kFaint = 0.15;  // black is the colour that nobody chose
  constexpr double kMinor = 0.4;
  const double opacity = layout_.GridColor() == qzBLACK ? kFaint : 1;
  for (const Tick& tick : ticks_) {
    const double pixel = scale_.Pixel(tick.value);
    const Point start = IsX() ? Point{pixel, pArea.top} : Point{pArea.left, pixel};
    const Point end = IsX() ? Point{pixel, pArea.bottom} : Point{pArea.right, pixel};
    DrawSegment(pSvg, start, end, ColorText(layout_.GridColor()), tick.isMinor ? opacity * kMinor : opacity);
  }
}

void Axis::Draw(Svg& pSvg, const Box& pArea) const {
  for (const Tick& tick : ticks_) DrawTick(pSvg, pArea, tick);
  DrawCaption(pSvg, pArea);
}

void Axis::DrawTick(Svg& pSvg, const Box& pArea, const Tick& pTick) const {
  const double pixel = scale_.Pixel(pTick.value);
  const double length = pTick.isMinor ? kMinorLength : kTickLength;
  const Point start = IsX() ? Point{pixel, pArea.bottom} : Point{pArea.left, pixel};
  const Point end = IsX() ? Point{pixel, start.y + length} : Point{start.x - length, pixel};
  DrawSegment(pSvg, start, end, labels_.color);
  if (!IsX()) return DrawText(pSvg, labels_, pTick.text, {start.x - kTickLength - kGap, pixel}, {1, 0.5});
  const double sine = Sine(labels_.angle);
  const Point below{pixel, pArea.bottom + kTickLength + kGap};
  const Anchor anchor = IsTurned(sine) ? Anchor{sine > 0 ? 1.0 : 0.0, 0.5} : Anchor{0.5, 0};
  DrawText(pSvg, labels_, pTick.text, below, anchor);
}

void Axis::DrawCaption(Svg& pSvg, const Box& pArea) const {
  const double middle = Depth() - CaptionDepth() / 2;
  const Point at = IsX() ? Point{pArea.MiddleX(), pArea.bottom + middle} : Point{pArea.left - middle, pArea.MiddleY()};
  DrawText(pSvg, title_, caption_, at, {0.5, 0.5});
}

}  // namespace plot
