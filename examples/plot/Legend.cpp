#include "examples/plot/Legend.h"

#include <algorithm>
#include <utility>

#include "examples/plot/Colors.h"
#include "examples/plot/Symbols.h"

using namespace qzbase;

namespace plot {

namespace {

enum Position : std::int32_t { kNone, kRight, kBelow, kAbove, kLeft, kUpperRight, kUpperLeft, kLowerLeft, kLowerRight };

constexpr double kPadding = 6;
constexpr double kGap = 10;  // between the legend and what stands beside it
constexpr double kSampleLength = 28;
constexpr double kLargestShare = 0.35;  // of the room
constexpr double kLargestInside = 0.6;
constexpr double kThinnest = 0.5;

std::int32_t PositionOf(const CLayoutGraph& pLayout) {
  const std::int32_t position = pLayout.LegendPos();
  return position >= kNone && position <= kLowerRight ? position : kRight;
}

void DrawSample(Svg& pSvg, const TCurveStyle& pStyle, Point pAt, const std::string& pBack) {
  if (HasLine(pStyle)) DrawLine(pSvg, pStyle, MoveTo(pAt) + LineTo({pAt.x + kSampleLength, pAt.y}));
  DrawSymbols(pSvg, pStyle, SymbolPath(pStyle, {pAt.x + kSampleLength / 2, pAt.y}), pBack);
}

}  // namespace

LegendBox::LegendBox(const CLayoutGraph& pLayout, const std::vector<Curve>& pCurves, Box& pRoom)
    : position_(PositionOf(pLayout)), lettering_(LetteringOf(pLayout, Legend)), room_(pRoom) {
  // Border and background are the legend's as a whole, not those of its texts.
  border_ = std::exchange(lettering_.border, 0);
  back_ = std::exchange(lettering_.back, "");
  if (back_.empty()) back_ = ColorText(pLayout.BackColor());
  lettering_.angle = 0;
  const bool isShown = IsShown(pLayout, Legend, pCurves.size() > 1);
  if (!isShown || pCurves.empty() || position_ == kNone) return;
  const double widest = pRoom.Width() * kLargestShare - kSampleLength - kGap - 2 * kPadding;
  entries_.reserve(pCurves.size());
  for (const Curve& curve : pCurves) entries_.push_back({lettering_.Cut(curve.name, widest), &curve.style, {}});
  if (position_ == kBelow || position_ == kAbove)
    PutInRows(pRoom.Width(), pRoom.Height() * kLargestShare);
  else
    PutBelowEachOther(pRoom.Height() * (position_ >= kUpperRight ? kLargestInside : 1));
  switch (position_) {
    case kRight:
      pRoom.right -= width_ + kGap;
      break;
    case kLeft:
      pRoom.left += width_ + kGap;
      break;
    case kAbove:
      pRoom.top += height_ + kGap;
      break;
    case kBelow:
      pRoom.bottom -= height_ + kGap;
      break;
    default:
      break;
  }
}

double LegendBox::EntryWidth(const Entry& pEntry) const {
  return kSampleLength + kPadding + lettering_.Width(pEntry.name);
}

// The entry before the first that found no room stands for them all.
void LegendBox::LeaveOut(std::size_t pFirst) {
  entries_.resize(pFirst, {u"", nullptr, {}});
  if (!entries_.empty()) entries_.back() = {u"\u2026", nullptr, entries_.back().place};
}

void LegendBox::PutBelowEachOther(double pMostHeight) {
  const auto most = static_cast<std::size_t>(std::max(1.0, (pMostHeight - 2 * kPadding) / RowHeight()));
  if (entries_.size() > most) LeaveOut(most);
  double y = kPadding;
  for (Entry& entry : entries_) {
    entry.place = {kPadding, y};
    y += RowHeight();
    width_ = std::max(width_, EntryWidth(entry) + 2 * kPadding);
  }
  height_ = y + kPadding;
}

// Below each other in columns of one width.
void LegendBox::PutInRows(double pMostWidth, double pMostHeight) {
  double column = 0;
  for (const Entry& entry : entries_) column = std::max(column, EntryWidth(entry) + 2 * kGap);
  const auto inRow = static_cast<std::size_t>(std::max(1.0, (pMostWidth - 2 * kPadding + 2 * kGap) / column));
  const auto rows = static_cast<std::size_t>(std::max(1.0, (pMostHeight - 2 * kPadding) / RowHeight()));
  if (entries_.size() > rows * inRow) LeaveOut(rows * inRow);
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const auto row = static_cast<double>(i / inRow);
    entries_[i].place = {kPadding + static_cast<double>(i % inRow) * column, kPadding + row * RowHeight()};
    width_ = std::max(width_, entries_[i].place.x + column - 2 * kGap + kPadding);
    height_ = entries_[i].place.y + RowHeight() + kPadding;
  }
}

Point LegendBox::Corner(const Box& pArea) const {
  const double middle =
      std::clamp(pArea.MiddleX() - width_ / 2, room_.left, std::max(room_.left, room_.right - width_));
  switch (position_) {
    case kLeft:
      return {room_.left, pArea.top};
    case kAbove:
      return {middle, room_.top};
    case kBelow:
      return {middle, room_.bottom - height_};
    case kUpperRight:
      return {pArea.right - width_ - kGap, pArea.top + kGap};
    case kUpperLeft:
      return {pArea.left + kGap, pArea.top + kGap};
    case kLowerLeft:
      return {pArea.left + kGap, pArea.bottom - height_ - kGap};
    case kLowerRight:
      return {pArea.right - width_ - kGap, pArea.bottom - height_ - kGap};
    default:
      return {room_.right - width_, pArea.top};
  }
}

void LegendBox::Draw(Svg& pSvg, const Box& pArea) const {
  if (entries_.empty()) return;
  const Point corner = Corner(pArea);
  const bool isInside = position_ >= kUpperRight;
  pSvg.Add("rect", {{"x", corner.x},
                    {"y", corner.y},
                    {"width", width_},
                    {"height", height_},
                    {"fill", back_},
                    {"fill-opacity", isInside ? "0.9" : ""},
                    {"stroke", border_ > 0 || isInside ? lettering_.color : "none"},
                    {"stroke-width", std::max(border_, kThinnest)}});
  for (const Entry& entry : entries_) {
    const double x = corner.x + entry.place.x;
    const double y = corner.y + entry.place.y + RowHeight() / 2;
    if (entry.style != nullptr) DrawSample(pSvg, *entry.style, {x, y}, back_);
    DrawText(pSvg, lettering_, entry.name, {x + kSampleLength + kPadding, y}, {0, 0.5});
  }
}

}  // namespace plot
