#include "examples/plot/Svg.h"

#include <array>
#include <charconv>
#include <cmath>

#include "qzbase/os/Utf8.h"

namespace plot {

namespace {

bool IsXmlCharacter(char16_t pCharacter) {
  if (pCharacter < 0x20) return pCharacter == u'\t' || pCharacter == u'\n' || pCharacter == u'\r';
  return pCharacter < 0xFFFE;
}

// What XML does not allow at all becomes a replacement character.
std::u16string XmlText(std::u16string_view pText) {
  std::u16string text(pText);
  for (char16_t& character : text)
    if (!IsXmlCharacter(character)) character = 0xFFFD;
  return text;
}

void AppendEscaped(std::string& pTarget, std::string_view pText) {
  for (const char c : pText) {
    switch (c) {
      case '&':
        pTarget += "&amp;";
        break;
      case '<':
        pTarget += "&lt;";
        break;
      case '>':
        pTarget += "&gt;";
        break;
      case '"':
        pTarget += "&quot;";
        break;
      default:
        pTarget += c;
    }
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
  AppendEscaped(text_, qzbase::os::ToUtf8(XmlText(pText)));
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
