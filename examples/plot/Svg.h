// Writes an SVG picture, element by element. Texts and attribute values are escaped; numbers have at most two decimals,
// with a point in every locale.
//
//   Svg svg(900, 560, u"Title");
//   svg.Add("rect", {{"x", 10}, {"width", 100}, {"fill", "#ffffff"}});
//   svg.AddText("text", {{"x", 20}}, u"a < b");
//   svg.Finish();
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace plot {

class Svg {
 public:
  struct Attribute {
    Attribute(std::string_view pName, double pValue) : name(pName), value(Number(pValue)) {}
    Attribute(std::string_view pName, std::string_view pValue) : name(pName), value(pValue) {}
    Attribute(std::string_view pName, const char* pValue) : name(pName), value(pValue) {}

    std::string name;
    std::string value;  // an attribute whose value is empty is not written
  };
  using Attributes = std::initializer_list<Attribute>;

  Svg(double pWidth, double pHeight, std::u16string_view pTitle);

  void Add(std::string_view pName, Attributes pAttributes);
  void AddText(std::string_view pName, Attributes pAttributes, std::u16string_view pText);
  // A group of elements, up to its `Close`.
  void Open(Attributes pAttributes);
  void Close();

  // The finished picture. Nothing may be added any more.
  std::string Finish();

  // What is no finite number is 0.
  static std::string Number(double pValue);

 private:
  void Start(std::string_view pName, Attributes pAttributes, std::string_view pEnd);

  std::string text_;
};

}  // namespace plot
