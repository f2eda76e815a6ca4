#include <algorithm>
#include <limits>
#include <sstream>

#include <gtest/gtest.h>

#include "qzbase/layout/CLayoutGraph.h"
#include "qzbase/layout/CLayoutGraph3D.h"
#include "qzbase/layout/CLayoutTable.h"
#include "qzbase/runtime/Convert.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Object;
using runtime::Variant;

// ---- A layout as a list of cells: all that its properties say, at all their indices, records field by field.

struct Property {
  std::u16string name;
  bool isIndexed = false;
  bool isList = false;  // as long as a number says
  std::vector<std::u16string> fields;
};

struct Cell {
  std::string shown;
  std::u16string name;
  std::int32_t index = 0;  // 0 for a property without
  std::u16string field;    // empty for one that is no record
};

// The lines of the public face that begin so, without their beginning.
std::vector<std::string> FaceLines(const std::string& pBeginning) {
  std::istringstream face(ReadTestFile("golden/typelib.txt"));
  std::vector<std::string> lines;
  for (std::string line; std::getline(face, line);)
    if (line.starts_with(pBeginning)) lines.push_back(line.substr(pBeginning.size()));
  return lines;
}

// "8 let CursorFormat(pAxis: GraphAxis, pNewValue: String)"
std::vector<Property> PropertiesOf(const std::string& pClass) {
  std::vector<Property> properties;
  for (const std::string& line : FaceLines(pClass + " ")) {
    const std::size_t name = line.find(" let ");
    if (name == std::string::npos) continue;
    const std::size_t index = line.find('(');
    const std::string type = line.substr(line.rfind(' ') + 1);
    Property property{FromUtf8(line.substr(name + 5, index - name - 5)),
                      line.find(", pNewValue") != std::string::npos,
                      line.find("(pIndex: ") != std::string::npos,
                      {}};
    for (const std::string& field : FaceLines(type.substr(0, type.size() - 1) + "."))
      if (field.find(": ") != std::string::npos)  // of a record; those of an enumeration have values
        property.fields.push_back(FromUtf8(field.substr(0, field.find(':'))));
    if (property.fields.empty()) property.fields.emplace_back();
    properties.push_back(property);
  }
  return properties;
}

template <class... Value>
void Let(Object& pLayout, const Cell& pCell, const Value&... pNewValue) {
  pCell.index == 0 ? pLayout.Let(pCell.name, pNewValue...) : pLayout.Let(pCell.name, pCell.index, pNewValue...);
}
Variant Get(Object& pLayout, const Cell& pCell) {
  return pCell.index == 0 ? pLayout.Get(pCell.name) : pLayout.Get(pCell.name, pCell.index);
}

// The indices that an indexed property has are those that raise nothing.
std::int32_t LastIndex(Object& pLayout, const Property& pProperty) {
  if (pProperty.isList) return runtime::ToLong(pLayout.Get(u"NrCurveStyles"));
  std::int32_t index = 0;
  while (ErrorOf([&] { pLayout.Get(pProperty.name, index + 1); }) == 0) ++index;
  return index;
}

std::vector<Cell> CellsOf(Object& pLayout, const std::vector<Property>& pProperties) {
  std::vector<Cell> cells;
  for (const Property& property : pProperties)
    for (const std::u16string& field : property.fields) {
      const std::string shown = ToUtf8(property.name) + (field.empty() ? "" : "." + ToUtf8(field));
      const std::int32_t last = property.isIndexed ? LastIndex(pLayout, property) : 0;
      for (std::int32_t i = property.isIndexed ? 1 : 0; i <= last; ++i)
        cells.push_back({shown, property.name, i, field});
    }
  return cells;
}

Variant ValueOf(Object& pLayout, const Cell& pCell) {
  const Variant value = Get(pLayout, pCell);
  return pCell.field.empty() ? value : (*value.If<Ref<Object>>())->Get(pCell.field);
}

void LetValueOf(Object& pLayout, const Cell& pCell, const Variant& pValue) {
  if (pCell.field.empty()) return Let(pLayout, pCell, pValue);
  const Variant record = Get(pLayout, pCell);
  (*record.If<Ref<Object>>())->Let(pCell.field, pValue);
  Let(pLayout, pCell, record);
}

using Texts = std::vector<std::u16string>;

Texts TextsOf(Object& pLayout, const std::vector<Cell>& pCells) {
  Texts texts;
  for (const Cell& cell : pCells) texts.push_back(runtime::ToText(ValueOf(pLayout, cell)));
  return texts;
}

// A line for a property or field, its values side by side.
std::string Dump(Object& pLayout, const std::vector<Cell>& pCells) {
  const Texts texts = TextsOf(pLayout, pCells);
  std::string dump;
  for (std::size_t i = 0; i < pCells.size(); ++i) {
    dump += i > 0 && pCells[i].shown == pCells[i - 1].shown ? "|" : "\n" + pCells[i].shown + " ";
    dump += ToUtf8(texts[i]);
  }
  return dump.substr(1) + "\n";
}

Variant Another(const Variant& pValue) {
  if (const bool* truth = pValue.If<bool>()) return !*truth;
  if (const auto* text = pValue.If<std::u16string>()) return *text + u"x\u00E4";
  if (const double* number = pValue.If<double>()) return *number + 1.5;
  return runtime::ToLong(pValue) + 1;
}

// ---- Records.

Bytes Golden(const std::string& pName) {
  const std::string file = ReadTestFile("golden/" + pName + ".bin");
  return Bytes(file.begin(), file.end());
}

template <class Layout>
Bytes Saved(Layout& pLayout) {
  CBuffer buffer;
  pLayout.SaveToBuffer(&buffer);
  const auto array = buffer.ByteArray();
  return Bytes(array.begin(), array.end() - 1);
}

template <class Layout>
void Load(Layout& pLayout, const Bytes& pBytes) {
  CBuffer buffer;
  buffer.LetByteArray(Storage(pBytes));
  pLayout.LoadFromBuffer(&buffer);
}

template <class Layout>
class GraphLayout : public testing::Test {
 protected:
  static constexpr bool kIs3D = std::is_same_v<Layout, CLayoutGraph3D>;

  const std::string name_ = kIs3D ? "CLayoutGraph3D" : "CLayoutGraph";
  const std::vector<Property> properties_ = PropertiesOf(name_);

 private:
  runtime::ScopedLocale locale_{TestLocale("en-US")};
};
using GraphLayouts = testing::Types<CLayoutGraph, CLayoutGraph3D>;
TYPED_TEST_SUITE(GraphLayout, GraphLayouts);

TYPED_TEST(GraphLayout, WhatIsWrittenIsReadCopiedComparedSavedAndLoaded) {
  TypeParam fresh;
  const std::vector<Cell> cells = CellsOf(fresh, this->properties_);
  const Texts before = TextsOf(fresh, cells);
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const Cell& cell = cells[i];
    SCOPED_TRACE(cell.shown + " " + std::to_string(cell.index));
    TypeParam layout;
    const Variant value = Another(ValueOf(layout, cell));
    LetValueOf(layout, cell, value);
    Texts changed = before;
    changed[i] = runtime::ToText(value);
    EXPECT_EQ(TextsOf(layout, cells), changed);

    const auto copy = layout.GetCopy();
    EXPECT_EQ(TextsOf(*copy, cells), changed);
    if (value.Kind() == runtime::VariantKind::String) LetValueOf(*copy, cell, u"X\u00C4");
    EXPECT_TRUE(copy->IsEqual(layout));
    EXPECT_EQ(fresh.IsEqual(layout), this->kIs3D && cell.name == u"Border");
    TypeParam loaded;
    Load(loaded, Saved(layout));
    EXPECT_EQ(TextsOf(loaded, cells), this->kIs3D && cell.name == u"BackColor" ? before : changed);
  }
}

TYPED_TEST(GraphLayout, TheRecordSaysWhatItAlwaysSaid) {
  TypeParam layout;
  Load(layout, Golden(this->name_));
  EXPECT_EQ(Dump(layout, CellsOf(layout, this->properties_)), ReadTestFile("golden/" + this->name_ + ".txt"));
  EXPECT_EQ(ToHex(Saved(layout)), ToHex(Golden(this->name_)));
}

TYPED_TEST(GraphLayout, OtherIndicesAreNotThere) {
  TypeParam layout;
  for (const Property& property : this->properties_) {
    if (!property.isIndexed || property.isList) continue;
    const std::int32_t last = property.name == u"LabelStyle" ? 6 : property.name.starts_with(u"Mesh") ? 2 : 3;
    EXPECT_EQ(LastIndex(layout, property), last) << ToUtf8(property.name);
    const Variant value = layout.Get(property.name, 1);
    for (const std::int32_t index : {-1, 0, last + 1}) {
      EXPECT_EQ(ErrorOf([&] { layout.Get(property.name, index); }), kSubscript) << ToUtf8(property.name);
      EXPECT_EQ(ErrorOf([&] { layout.Let(property.name, index, value); }), kSubscript) << ToUtf8(property.name);
    }
  }
}

TEST(CurveStyles, ColoursRepeat) {
  const std::pair<std::int32_t, std::int32_t> rows[] = {{1, qzBlue}, {4, qzCyan},   {10, qzLightRed}, {11, qzBlue},
                                                        {0, qzBlue}, {-1, qzBLACK}, {-9, qzBlue}};
  for (const auto& [index, color] : rows) EXPECT_EQ(CLayoutGraph::DefaultColor(index), color) << index;
  EXPECT_EQ(ErrorOf([] { CLayoutGraph::DefaultColor(std::numeric_limits<std::int32_t>::min()); }), kOverflow);
}

TEST(CurveStyles, GrowByTheirNumberAlone) {
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
  EXPECT_TRUE(layout.CurveStyle(1) == style && layout.CurveStyle(3) == CLayoutGraph::DefaultCurveStyle(3));
  EXPECT_TRUE(layout.GetCopy()->IsEqual(layout));
  layout.LetNrCurveStyles(0);
  EXPECT_EQ(layout.CurveStyle(1), CLayoutGraph::DefaultCurveStyle(1));
  EXPECT_EQ(ErrorOf([&] { layout.CurveStyle(0); }), kSubscript);
  EXPECT_EQ(ErrorOf([&] { layout.LetCurveStyle(-1, style); }), kSubscript);
}

TEST(CurveStyles, NoneGrowFromANegativeNumber) {
  CLayoutGraph source;
  source.LetTitle(u"new");
  source.LetShowGrid(ZAxis, true);
  source.LetCursorMode(7);
  const Bytes record = Saved(source);
  for (const bool isLoaded : {false, true}) {
    CLayoutGraph layout;
    layout.LetNrCurveStyles(-2);
    EXPECT_EQ(layout.CurveStyle(-1).Color, qzBLACK);
    EXPECT_EQ(ErrorOf([&] { layout.LetNrCurveStyles(0); }), kSubscript);
    EXPECT_EQ(ErrorOf([&] { isLoaded ? Load(layout, record) : layout.CopyFrom(source); }), kSubscript);
    EXPECT_TRUE(layout.Title() == u"new" && layout.ShowGrid(ZAxis) && layout.CursorMode() == 0);
    EXPECT_EQ(layout.NrCurveStyles(), -2);
    CLayoutGraph taker;
    taker.CopyFrom(layout);
    EXPECT_EQ(taker.NrCurveStyles(), -2);
  }
}

TEST(CurveStyles, OneThatCannotBeReadToItsEndKeepsWhatWasRead) {
  Bytes record = Golden("CLayoutGraph");
  const Bytes symbol = FromHex("05 18 00 00 00");  // of style 2
  *std::search(record.begin(), record.end(), symbol.begin(), symbol.end()) = 4;
  CLayoutGraph layout;
  EXPECT_EQ(ErrorOf([&] { Load(layout, record); }), NumberOf(BuiltInError::InvVarType));
  EXPECT_EQ(layout.CurveStyle(2), (TCurveStyle{21, 22, 23, 1, 5}));
  EXPECT_EQ(layout.CursorMode(), 0);
}

TEST(LayoutTable, InfosAreAddressedByTheTextOfANumber) {
  CLayoutTable layout;
  EXPECT_TRUE(layout.Border() == BorderNone && layout.CaptionColour() == qzLightGrey && layout.NrGenericInfos() == 0);
  EXPECT_EQ(*layout.AddGenericInfo(u"7", EVTLong, 42).If<std::int32_t>(), 1);
  layout.AddGenericInfo(u"7", EVTLong, 43);
  layout.AddGenericInfo(u"-5", EVTString, u"x");
  layout.LetGenericInfoValue(-5, 8);
  for (const auto& [id, value] : {std::pair(7, 42), {1, 0}, {-5, 8}})
    EXPECT_EQ(*layout.GetGenericInfoValue(id, 0).If<std::int32_t>(), value);
  EXPECT_EQ(ErrorOf([&] { layout.LetGenericInfoValue(2, 0); }), kSubscript);

  CEntryDescs descs;
  descs.LetSize(1);
  EXPECT_EQ(layout.SetColDescs(descs), 0);
  descs.DescRef(1)->LetID(u"changed");
  EXPECT_EQ(layout.ColDescsRef()->DescRef(1)->ID(), u"");
  layout.LetBorder(Border2D);
  layout.LetCaptionColour(5);
  layout.LetGenericInfoValue(-5, u"x");
  EXPECT_EQ(ToHex(Saved(layout)), ToHex(Golden("CLayoutTable")));
  CLayoutTable loaded;
  Load(loaded, Golden("CLayoutTable"));
  const auto copy = layout.GetCopy();
  EXPECT_TRUE(loaded.IsEqual(layout) && copy->IsEqual(layout) && !CLayoutTable().IsEqual(layout));
  EXPECT_EQ(Saved(loaded), Saved(*copy));
  layout.ClearGenericInfos();
  EXPECT_EQ(layout.NrGenericInfos(), 0);
}

}  // namespace
}  // namespace qzbase::tests
