#include "examples/plot/Lettering.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "examples/plot/Colors.h"
#include "qzbase/core/QZColor.h"
#include "qzbase/os/Utf8.h"

using namespace qzbase;

namespace plot {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72;
constexpr double kBoxRoom = 3;  // between a text and its border

enum FontBits : std::int32_t { kBold = 1, kItalic = 2, kUnderlined = 4, kStruckThrough = 8 };

// Points.
double DefaultSize(GraphLabel pLabel) {
  switch (pLabel) {
    case GraphTitle:
      return 13;
    case AxisTitle:
      return 10;
    case FreeLabel:
      return 8;
    default:
      return 9;
  }
}

double AngleOf(const TLabelStyle& pStyle, double pDefault) {
  const double rotation = pStyle.Rotation % 360;
  switch (pStyle.Orientation) {
    case 1:
      return rotation;
    case 2:
      return 90 + rotation;
    case 3:
      return rotation - 90;
    default:
      return pDefault + rotation;
  }
}

std::string Family(const std::u16string& pFontName) {
  std::string name = os::ToUtf8(pFontName);
  std::erase_if(name, [](char pCharacter) { return pCharacter == '\'' || pCharacter == '\\'; });
  return (name.empty() ? "Helvetica, Arial" : "'" + name + "'") + ", sans-serif";
}

// Of the font's size.
double CharacterWidth(char16_t pCharacter) {
  constexpr char16_t kFirstWideScript = 0x2E80;
  constexpr std::u16string_view kNarrow = u"ijltfI.,:;'!|()[] /";
  constexpr std::u16string_view kWide = u"mwMW@%\u2026";
  if (pCharacter >= kFirstWideScript) return 1;
  if (kNarrow.find(pCharacter) != std::u16string_view::npos) return 0.3;
  if (kWide.find(pCharacter) != std::u16string_view::npos) return 0.92;
  return pCharacter >= u'A' && pCharacter <= u'Z' ? 0.7 : 0.57;
}

double Cosine(double pDegrees) {
  return std::abs(std::cos(pDegrees * std::numbers::pi / 180));
}
double Sine(double pDegrees) {
  return std::abs(std::sin(pDegrees * std::numbers::pi / 180));
}

bool IsInsidePair(std::u16string_view pText, std::size_t pAt) {
  return pAt > 0 && pAt < pText.size() && (pText[pAt] & 0xFC00) == 0xDC00;
}

}  // namespace

double Lettering::Width(std::u16string_view pText) const {
  double width = 0;
  for (const char16_t character : pText) width += CharacterWidth(character);
  return width * size * ((fontStyle & kBold) != 0 ? 1.08 : 1);
}

double Lettering::TurnedWidth(std::u16string_view pText) const {
  return Width(pText) * Cosine(angle) + LineHeight() * Sine(angle);
}

double Lettering::TurnedHeight(std::u16string_view pText) const {
  return Width(pText) * Sine(angle) + LineHeight() * Cosine(angle);
}

std::u16string Lettering::Cut(std::u16string_view pText, double pRoom) const {
  if (Width(pText) <= pRoom) return std::u16string(pText);
  std::size_t kept = pText.size();
  while (kept > 0 && Width(pText.substr(0, kept)) + Width(u"\u2026") > pRoom) --kept;
  if (IsInsidePair(pText, kept)) --kept;
  return std::u16string(pText.substr(0, kept)) + u"\u2026";
}

std::vector<std::u16string> Lettering::Wrap(std::u16string_view pText, double pRoom, std::size_t pMostLines) const {
  std::vector<std::u16string> lines;
  while (!pText.empty() && lines.size() + 1 < pMostLines && Width(pText) > pRoom) {
    std::size_t end = 0;
    for (std::size_t blank = pText.find(u' '); blank != std::u16string_view::npos; blank = pText.find(u' ', blank + 1))
      if (Width(pText.substr(0, blank)) <= pRoom) end = blank;
    if (end == 0) break;  // a word that is too long
    lines.emplace_back(pText.substr(0, end));
    pText.remove_prefix(end + 1);
  }
  if (!pText.empty()) lines.push_back(Cut(pText, pRoom));
  return lines;
}

Lettering LetteringOf(const CLayoutGraph& pLayout, GraphLabel pLabel, double pAngle) {
  constexpr double kSmallestFont = 4;
  constexpr double kLargestFont = 72;
  constexpr std::int32_t kLargestBorder = 10;
  const TLabelStyle& style = pLayout.LabelStyle(pLabel);
  const double points =
      style.FontSize > 0 ? std::clamp(style.FontSize, kSmallestFont, kLargestFont) : DefaultSize(pLabel);
  const bool isVisible = style.BackColor != style.ForeColor && style.BackColor != qzInvalidColor;
  return {.family = Family(style.FontName),
          .size = points * kPixelsPerPoint,
          .fontStyle = style.FontStyle,
          .color = ColorText(style.ForeColor),
          .back = isVisible ? ColorText(style.BackColor) : "",
          .border = static_cast<double>(std::clamp(style.BorderWidth, 0, kLargestBorder)),
          .angle = AngleOf(style, pAngle)};
}

bool IsShown(const CLayoutGraph& pLayout, GraphLabel pLabel, bool pUsually) {
  enum Mode : std::int32_t { kAutomatic, kShown, kHidden };
  switch (pLayout.LabelMode(pLabel)) {
    case kShown:
      return true;
    case kHidden:
      return false;
    default:
      return pUsually;
  }
}

void DrawText(Svg& pSvg, const Lettering& pLettering, std::u16string_view pText, Point pAt, Anchor pAnchor) {
  if (pText.empty()) return;
  const double width = pLettering.Width(pText);
  const double height = pLettering.LineHeight();
  const bool isTurned = pLettering.angle != 0;
  if (isTurned)
    pSvg.Open({{"transform", "translate(" + Svg::Number(pAt.x) + " " + Svg::Number(pAt.y) + ") rotate(" +
                                 Svg::Number(-pLettering.angle) + ")"}});
  const Point at = isTurned ? Point{} : pAt;
  const Point corner{at.x - pAnchor.x * width, at.y - pAnchor.y * height};
  if (!pLettering.back.empty() || pLettering.border > 0)
    pSvg.Add("rect", {{"x", corner.x - kBoxRoom},
                      {"y", corner.y - 1},
                      {"width", width + 2 * kBoxRoom},
                      {"height", height + 2},
                      {"fill", pLettering.back.empty() ? "none" : pLettering.back},
                      {"stroke", pLettering.border > 0 ? pLettering.color : "none"},
                      {"stroke-width", pLettering.border}});
  const std::string lines = std::string((pLettering.fontStyle & kUnderlined) != 0 ? "underline " : "") +
                            ((pLettering.fontStyle & kStruckThrough) != 0 ? "line-through" : "");
  pSvg.AddText("text",
               {{"x", at.x},
                {"y", corner.y + height / 2 + pLettering.size * 0.35},
                {"text-anchor", pAnchor.x == 0   ? ""
                                : pAnchor.x == 1 ? "end"
                                                 : "middle"},
                {"font-family", pLettering.family},
                {"font-size", pLettering.size},
                {"font-weight", (pLettering.fontStyle & kBold) != 0 ? "bold" : ""},
                {"font-style", (pLettering.fontStyle & kItalic) != 0 ? "italic" : ""},
                {"text-decoration", lines},
                {"fill", pLettering.color}},
               pText);
  if (isTurned) pSvg.Close();
}

}  // namespace plot
