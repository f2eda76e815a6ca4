#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include "qzbase/data/CTable.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using Data = CEntryData;
using runtime::Variant;

// "3: 3(3;1;3) 4(c;a;b)": the number of rows, then for each column its type and elements; "-" for none.
std::string Shown(const Data& pData) {
  std::string text = std::to_string(pData.NrRows()) + ':';
  for (std::int32_t i = 1; i <= pData.NrCols(); ++i) {
    text += ' ';
    if (ErrorOf([&] { pData.Col(i); }) == kObjectNotSet)
      text += '-';
    else
      text += std::to_string(pData.VarType(i)) + ToUtf8(pData.Col(i)->GetString());
  }
  return text;
}

Ref<CVector> VectorOf(QZVarType pType, const std::vector<Variant>& pValues) {
  auto vector = New<CVector>();
  vector->LetVarType(pType);
  for (const Variant& value : pValues) vector->AddValue(value);
  return vector;
}

void Fill(Data& pData) {
  pData.LetNrCols(2);
  pData.LetNrRows(3);
  pData.SetCol(1, VectorOf(EVTLong, {3, 1, 3}));
  pData.SetCol(2, VectorOf(EVTString, {u"c", u"a", u"b"}));
}

TEST(CEntryData, KeepsColumnsAndRows) {
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  const char* const before = "3: 3(3;1;3) 4(c;a;b)";
  const struct {
    void (*change)(Data&);
    const char* shown;
    std::int32_t error = 0;
  } rows[] = {
      {[](Data& d) { d.AddCol(EVTDouble), d.AddRow(); }, "4: 3(3;1;3;-2147483636) 4(c;a;b;~) 2(;;;-9.9999999999E+300)"},
      {[](Data& d) { d.InsertCol(EVTEnum, 1), d.InsertRow(2); }, "4: 8(;-1;;) 3(3;-2147483636;1;3) 4(c;~;a;b)"},
      {[](Data& d) { d.AddCol(EVTDate), d.MoveCol(1, 3); }, "3: 4(c;a;b) 5(;;) 3(3;1;3)"},
      {[](Data& d) { d.AddCol(EVTDate), d.MoveCol(3, 1); }, "3: 5(;;) 3(3;1;3) 4(c;a;b)"},
      {[](Data& d) { d.MoveCol(1, 3); }, before, kSubscript},
      {[](Data& d) { d.DeleteCol(1); }, "3: 4(c;a;b)"},
      {[](Data& d) { d.DeleteCol(0); }, before, kSubscript},
      {[](Data& d) { d.Clear(), d.DeleteCol(0), d.DeleteRow(0); }, "0:"},
      {[](Data& d) { d.DeleteRow(1); }, "2: 3(1;3) 4(a;b)"},
      {[](Data& d) { d.DeleteRow(9); }, "2: 3(3;1) 4(c;a)"},
      {[](Data& d) { d.DeleteRow(0); }, before, kSubscript},
      {[](Data& d) { d.LetNrRows(5); }, "5: 3(3;1;3;;-2147483636) 4(c;a;b;;~)"},
      {[](Data& d) { d.LetNrRows(2); }, "2: 3(3;-2147483636) 4(c;~)"},  // the last row whether new or not
      {[](Data& d) { d.LetNrCols(3), d.LetNrRows(2), d.AddRow(), d.DeleteRow(1); },
       "2: 3(-2147483636;-2147483636) 4(~;~) -"},
      {[](Data& d) { d.LetNrCols(0), d.LetNrCols(1); }, "3: -"},
      {[](Data& d) { d.DeleteCol(1), d.DeleteCol(1), d.LetNrCols(1); }, "3: -"},
      {[](Data& d) { d.LetVarType(1, EVTLong); }, before},
      {[](Data& d) { d.LetVarType(1, EVTDate); }, "3: 5(;;) 4(c;a;b)"},
      {[](Data& d) { d.LetNrCols(3), d.LetVarType(3, EVTInvalid); }, "3: 3(3;1;3) 4(c;a;b) 0(;;)"},
      {[](Data& d) { d.LetCol(1, *d.Col(2)), d.LetValue(1, 1, 7); }, "3: 4(7;a;b) 4(c;a;b)"},
      {[](Data& d) { d.SetCol(1, d.Col(2)), d.LetValue(1, 1, 7); }, "3: 4(7;a;b) 4(7;a;b)"},
      {[](Data& d) { d.SetCol(1, nullptr); }, before, kObjectNotSet},
      {[](Data& d) { d.Sort(1, true); }, "3: 3(1;3;3) 4(a;c;b)"},
      {[](Data& d) { d.Col(2)->LetSize(2), d.Sort(1, true); }, "3: 3(3;1;3) 4(c;a)", kSubscript},
      {[](Data& d) { d.Col(1)->AddValue(0), d.Sort(1, true); }, "3: 3(1;3;3;0) 4(a;c;b)"},  // rows alone are sorted
  };
  for (const auto& row : rows) {
    Data data;
    Fill(data);
    EXPECT_EQ(ErrorOf([&] { row.change(data); }), row.error) << row.shown << &row - rows;
    EXPECT_EQ(Shown(data), row.shown) << &row - rows;
  }
}

TEST(CEntryData, RaisesWhereASlotHoldsNoColumn) {
  void (*const calls[])(Data&) = {
      [](Data& d) { d.VarType(3); },           [](Data& d) { d.Col(3); },
      [](Data& d) { d.LetCol(3, CVector()); }, [](Data& d) { d.Value(3, 1); },
      [](Data& d) { d.Sort(1, true); },        [](Data& d) { d.Sort(3, true); },
      [](Data& d) { d.LetValue(3, 1, 1); },    [](Data& d) { d.GetCopy(); },
      [](Data& d) { d.IsEqual(d); },           [](Data& d) { d.SaveToBuffer(std::make_unique<CBuffer>().get()); },
  };
  Data data;
  Fill(data);
  data.LetNrCols(3);
  for (const auto& call : calls) EXPECT_EQ(ErrorOf([&] { call(data); }), kObjectNotSet) << &call - calls;
  data.MoveCol(3, 1);
  EXPECT_EQ(Shown(data), "3: - 3(3;1;3) 4(c;a;b)");
}

TEST(CEntryData, CopiesAndCompares) {
  Data data, other;
  Fill(data);
  other.CopyFrom(data);
  EXPECT_TRUE(other.IsEqual(data));

  CDblMatrix matrix;
  matrix.LetNrCols(2);
  matrix.LetNrRows(2);
  matrix.LetValue(1, 2, 3);
  matrix.LetValue(2, 1, 2);
  other.CopyFromValues(matrix);
  EXPECT_EQ(Shown(other), "2: 2(0;3) 2(2;0)");
  matrix.RowRef(1)->LetBlockSize(1);  // the row has fewer slots than the matrix columns
  matrix.RowRef(1)->LetSize(1);
  EXPECT_EQ(ErrorOf([&] { other.CopyFromValues(matrix); }), kSubscript);
  EXPECT_EQ(Shown(other), "2: 2(0;3) 2(2;0)");
}

TEST(CEntryData, SavesTypesAndColumnsInTurn) {
  Data data, loaded;
  data.LetNrCols(4);
  data.LetNrRows(2);
  data.SetCol(1, VectorOf(EVTLong, {7, kInvalidLong}));
  data.SetCol(2, VectorOf(EVTString, {u"\u00C4\u4E2D", u"~"}));
  data.SetCol(3, VectorOf(EVTDate, {runtime::Date{2.5}, runtime::Date{0}}));
  data.SetCol(4, VectorOf(EVTBoolean, {true, false}));
  CBuffer buffer;
  data.SaveToBuffer(&buffer);
  const std::string golden = ReadTestFile("golden/CEntryData.bin");
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));
  Fill(loaded);
  loaded.LoadFromBuffer(&buffer);
  EXPECT_TRUE(loaded.IsEqual(data)) << Shown(loaded);

  for (const QZVarType type : {EVTInvalid, EVTColor}) {  // written, but not to be read back
    Fill(data);
    data.SetCol(2, VectorOf(type, {1, 2, 3}));
    data.SaveToBuffer(&buffer);
    EXPECT_EQ(ErrorOf([&] { loaded.LoadFromBuffer(&buffer); }), NumberOf(BuiltInError::InvVarType));
    EXPECT_EQ(loaded.Col(1)->GetString(), u"(3;1;3)");
  }

  for (const std::int32_t nrCols : {2'000'000'000, 9'000, 0}) {
    buffer.Clear();
    buffer.AddTag(u"EntryData#1");
    buffer.AddLong(nrCols);
    buffer.AddLong(600'000);
    EXPECT_EQ(ErrorOf([&] { loaded.LoadFromBuffer(&buffer); }), nrCols == 0 ? 0 : kOutOfMemory) << nrCols;
  }
  EXPECT_EQ(Shown(loaded), "600000:");
}

Ref<TEntryDesc> NewDesc(std::u16string_view pID, QZVarType pType, std::u16string_view pFormat = {}) {
  auto desc = New<TEntryDesc>();
  desc->LetID(pID);
  desc->LetVarType(pType);
  desc->LetOutFormat(pFormat);
  desc->LetNrDims(3);
  return desc;
}

// "AB 1: 2(7) 4(x)": the identifiers of the descriptors, then the grid.
std::string Shown(const CTable& pTable) {
  std::string text;
  for (std::int32_t i = 1; i <= pTable.NrCols(); ++i) text += ToUtf8(pTable.ColDescRef(i)->ID());
  return text + ' ' + Shown(*pTable.DataRef());
}

struct Table : testing::Test {
  Table() {
    table.LetID(u"t");
    table.AddCol(a);
    table.AddCol(b);
    table.AddRow();
    table.LetValue(1, 1, 2.5);
  }
  runtime::ScopedLocale locale{TestLocale("en-US")};
  Ref<TEntryDesc> a = NewDesc(u"A", EVTDouble), b = NewDesc(u"B", EVTString), c = NewDesc(u"C", EVTLong);
  CTable table;
};

TEST_F(Table, KeepsDescriptorsAndColumnsInStep) {
  table.InsertCol(*c, 2);
  EXPECT_EQ(Shown(table), "ACB 1: 2(2.5) 3() 4(~)");
  table.LetColDesc(3, *NewDesc(u"D", EVTDate));
  EXPECT_EQ(b->ID(), u"D");  // the stored object took over the contents
  c->LetID(u"X");
  a->LetID(u"E");
  EXPECT_EQ(Shown(table), "ECD 1: 2(2.5) 3() 5()");
  EXPECT_EQ(table.ColDesc(1)->NrDims(), 3);  // stored itself
  EXPECT_EQ(table.ColDesc(2)->NrDims() + table.ColDesc(3)->NrDims() + c->NrDims(), 3);
  EXPECT_EQ(table.ColIndex(u"d"), 3);
  table.SetColDesc(2, NewDesc(u"F", EVTString));
  table.MoveCol(1, 3);  // the descriptors lose the one that moves
  EXPECT_EQ(Shown(table), "FDD 1: 4() 5() 2(2.5)");
  table.DeleteCol(1);
  table.DeleteCol(9);
  EXPECT_EQ(Shown(table), "D 1: 5()");
  table.Clear();
  EXPECT_EQ(ToUtf8(table.ID()) + Shown(table), "t 0:");
}

TEST_F(Table, RefusesWhatItCannotKeepInStep) {
  const auto withoutValue = NewDesc(u"N", EVTLong);
  withoutValue->SetVarDesc(nullptr);
  const std::pair<std::function<void()>, std::int32_t> rows[] = {
      {[&] { table.AddCol(nullptr); }, kObjectNotSet},
      {[&] { table.AddCol(withoutValue); }, kObjectNotSet},
      {[&] { table.SetColDesc(1, withoutValue); }, kObjectNotSet},
      {[&] { table.SetColDesc(3, c); }, kSubscript},
      {[&] { table.LetColDesc(3, *c); }, kSubscript},
      {[&] { table.MoveCol(1, 3); }, kSubscript},
      {[&] { table.DeleteCol(0); }, kSubscript},
  };
  for (const auto& [call, error] : rows) {
    EXPECT_EQ(ErrorOf(call), error);
    EXPECT_EQ(Shown(table), "AB 1: 2(2.5) 4(~)");
  }
  table.LetNrCols(3);
  EXPECT_EQ(ErrorOf([&] { table.Value(3, 1); }), kObjectNotSet);
  EXPECT_EQ(ErrorOf([&] { CTable().CopyFrom(table); }), kObjectNotSet);
  table.LetColDesc(3, *c);
  EXPECT_EQ(Shown(table), "ABC 1: 2(2.5) 4(~) 3()");
}

TEST_F(Table, SortsAndShowsRows) {
  EXPECT_EQ(CTable().GetString(), u"\n");
  table.InsertRow(1);
  table.LetValue(2, 2, u"x");
  table.LetNrRows(3);
  table.LetValue(1, 3, 1.5);
  table.Sort(1);
  table.InverseRowOrder();
  EXPECT_EQ(ToUtf8(table.GetString()), "A;B;\n~;~;\n1.5;~;\n2.5;x;\n");
  table.Sort(1, false);
  const auto row = table.Row(1);
  EXPECT_EQ(row->GetString(), u"A;B;\n2.5;x;");
  row->LetValue(1, 7);
  row->DescRef(1)->LetID(u"Z");
  table.DeleteRow(2);
  EXPECT_EQ(ToUtf8(table.GetString()), "A;B;\n2.5;x;\n~;~;\n");

  const std::pair<Ref<TEntryDesc>, Variant> cells[] = {{NewDesc(u"1230", EVTDouble, u"SF3"), 1234.5},
                                                       {NewDesc(u"high", EVTEnum, u"{low;high}"), 2},
                                                       {NewDesc(u"~", EVTBoolean), {}},
                                                       {NewDesc(u"7.0", EVTInvalid, u"0.0"), 7},
                                                       {NewDesc(u"", EVTObject), 7}};
  CTable formats;
  formats.LetNrRows(1);
  for (const auto& [desc, value] : cells) {
    formats.AddCol(desc);
    formats.LetValue(formats.NrCols(), 1, value);
  }
  EXPECT_EQ(ToUtf8(formats.GetString()), "1230;high;~;7.0;;\n1230;high;~;7.0;;\n");
}

TEST_F(Table, IsMadeFromDescriptorsAndFromARecord) {
  CTable other;
  other.AddCol(c);
  other.LetNrRows(4);
  CTypedInfo info;
  info.AddInfo(*b, u"y");
  info.AddInfo(*c, 5);
  info.AddInfo(*a, 1.0);
  other.CopyFromInfo(info);
  EXPECT_EQ(other.GetString(), u"B;C;A;\ny;5;1;\n");
  other.SetupFrom(*table.DescsRef());
  EXPECT_EQ(Shown(other), "AB 0: 2() 4()");
}

TEST_F(Table, SavesAndCompares) {
  CBuffer buffer;
  table.SaveToBuffer(&buffer);
  const std::string golden = ReadTestFile("golden/CTable.bin");
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));
  CTable loaded;
  loaded.LoadFromBuffer(&buffer);
  loaded.LetID(u"T");
  EXPECT_TRUE(loaded.IsEqual(table));
  EXPECT_TRUE(table.GetCopy()->IsEqual(loaded));
  loaded.LetValue(1, 1, 3);
  EXPECT_FALSE(loaded.IsEqual(table));
}

}  // namespace
}  // namespace qzbase::tests
