#include "examples/plot/Svg.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "qzbase/os/Utf8.h"

namespace plot {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

// The length of what XML does not allow at all at the front of a text: control characters, U+FFFE, U+FFFF.
std::size_t NoXmlLength(std::string_view pText) {
  constexpr char kFirstPrintable = ' ';
  const char c = pText.front();
  if (c >= 0 && c < kFirstPrintable) return c == '\t' || c == '\n' || c == '\r' ? 0 : 1;
  return pText.starts_with("\xEF\xBF\xBE") || pText.starts_with("\xEF\xBF\xBF") ? 3 : 0;
}

std::string_view Escape(char pCharacter) {
  switch (pCharacter) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    default:
      return {};
  }
}

// UTF-8.
void AppendEscaped(std::string& pTarget, std::string_view pText) {
  while (!pText.empty()) {
    const std::size_t refused = NoXmlLength(pText);
    const std::string_view escape = Escape(pText.front());
    pTarget += refused > 0 ? kReplacement : escape.empty() ? pText.substr(0, 1) : escape;
    pText.remove_prefix(std::max<std::size_t>(refused, 1));
  }
}

}  // namespace

Svg::Svg(double pWidth, double pHeight, std::u16string_view pTitle) {
  text_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  Start("svg",
        {{"xmlns", "http://www.w3.org/2000/svg"},
         {"width", pWidth},
         {"height", pHeight},
         {"viewBox", "0 0 " + Number(pWidth) + " " + Number(pHeight)}},
        ">\n");
  AddText("title", {}, pTitle);
}

void Svg::Add(std::string_view pName, Attributes pAttributes) {
  Start(pName, pAttributes, "/>\n");
}

void Svg::AddText(std::string_view pName, Attributes pAttributes, std::u16string_view pText) {
  Start(pName, pAttributes, ">");
  AppendEscaped(text_, qzbase::os::ToUtf8(pText));
  text_.append("</").append(pName).append(">\n");
}

void Svg::Open(Attributes pAttributes) {
  Start("g", pAttributes, ">\n");
}

void Svg::Close() {
  text_ += "</g>\n";
}

std::string Svg::Finish() {
  return text_ += "</svg>\n";
}

std::string Svg::Number(double pValue) {
  constexpr double kFarthest = 1e9;
  if (!std::isfinite(pValue) || std::abs(pValue) > kFarthest) return "0";
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), pValue, std::chars_format::fixed, 2).ptr;
  std::string text(digits.data(), end);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

void Svg::Start(std::string_view pName, Attributes pAttributes, std::string_view pEnd) {
  text_.append("<").append(pName);
  for (const Attribute& attribute : pAttributes) {
    if (attribute.value.empty()) continue;
    text_.append(" ").append(attribute.name).append("=\"");
    AppendEscaped(text_, attribute.value);
    text_ += '"';
  }
  text_ += pEnd;
}

}  // namespace plot
