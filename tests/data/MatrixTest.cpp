#include <limits>

#include <gtest/gtest.h>

#include "qzbase/data/CDblMatrix.h"
#include "qzbase/data/CMatrix.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

// "2: (11;12)(21;22)": the number of columns, then the rows.
template <class Matrix>
std::string Shown(const Matrix& pMatrix) {
  std::string text = std::to_string(pMatrix.NrCols()) + ": ";
  for (std::int32_t i = 1; i <= pMatrix.NrRows(); ++i) text += ToUtf8(pMatrix.RowRef(i)->GetString());
  return text;
}

template <class Matrix, class Type = typename Matrix::RowVector::Type>
void Fill(Matrix& pMatrix, const std::vector<std::vector<Type>>& pRows) {
  for (const auto& values : pRows) {
    typename Matrix::RowVector row;
    for (const auto& value : values) row.AddValue(value);
    pMatrix.AddRow(row);
    pMatrix.LetNrCols(row.Size());
  }
}

template <class Matrix>
struct EveryMatrix : testing::Test {};
using AllMatrices = testing::Types<CDblMatrix, CMatrix>;
TYPED_TEST_SUITE(EveryMatrix, AllMatrices);

TYPED_TEST(EveryMatrix, KeepsRowsAndColumns) {
  using M = TypeParam;
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  const struct {
    void (*change)(M&);
    const char* shown;
    std::int32_t error = 0;
  } rows[] = {
      {[](M& m) { m.InsertCol(1); }, "3: (-9.9999999999E+300;11;12)(-9.9999999999E+300;21;22)"},
      {[](M& m) { m.InsertCol(9); }, "3: (11;12;-9.9999999999E+300)(21;22;-9.9999999999E+300)"},
      {[](M& m) { m.DeleteCol(9); }, "1: (11)(21)"},
      {[](M& m) { m.DeleteCol(0); }, "1: (11;12)(21;22)", kSubscript},
      {[](M& m) { m.InsertRow(1), m.LetRow(1, *m.Row(2)); }, "2: (11;12)(11;12)(21;22)"},
      {[](M& m) { m.InsertRow(9), m.LetRow(3, *m.RowRef(1)); }, "2: (11;12)(21;22)(11;12)"},
      {[](M& m) { m.DeleteRow(9); }, "2: (11;12)"},
      {[](M& m) { m.DeleteRow(0); }, "2: (11;12)(21;22)", kSubscript},
      {[](M& m) { m.LetNrCols(1), m.AddRow(*m.RowRef(2)); }, "1: (11)(21)(21)"},
      {[](M& m) { m.RowRef(1)->LetSize(1), m.LetNrCols(2); }, "2: (11)(21;22)"},  // unchanged: the row stays short
      {[](M& m) { m.LetNrRows(0), m.LetNrRows(1); }, "2: (11;12)"},               // the slot that is always there
      {[](M& m) { m.LetNrRows(-2), m.AddRow(*m.Row(1)); }, "2: ", kSubscript},    // no slot -1
      {[](M& m) { m.LetValue(2, 1, 5), m.LetValue(1, 2, m.Value(2, 1)); }, "2: (11;5)(5;22)"},
      {[](M& m) { m.Value(1, 3); }, "2: (11;12)(21;22)", kSubscript},
      {[](M& m) { m.LetCol(1, *m.RowRef(2)); }, "2: (21;12)(22;22)"},
      {[](M& m) { m.AddRow(*m.Col(2)); }, "2: (11;12)(21;22)(12;22)"},
      {[](M& m) { m.RowRef(1)->LetSize(1), m.LetRow(2, *m.RowRef(1)); }, "2: (11)(11;22)"},
      {[](M& m) { m.AddRow(*m.Row(1)), m.DeleteRow(1), m.AddRow(*m.Row(1)), m.InverseRowOrder(); },
       "2: (21;22)(11;12)(21;22)"},
      {[](M& m) { m.Sort(0, false), m.Sort(3, false); }, "2: (11;12)(21;22)"},
      {[](M& m) { m.CopyFrom(m); }, "2: (11;12)(21;22)"},
  };
  for (const auto& row : rows) {
    M matrix;
    Fill(matrix, {{11, 12}, {21, 22}});
    EXPECT_EQ(ErrorOf([&] { row.change(matrix); }), row.error) << &row - rows;
    EXPECT_EQ(Shown(matrix), row.shown) << &row - rows;
  }
}

TYPED_TEST(EveryMatrix, MakesAndCopiesRows) {
  TypeParam matrix;
  EXPECT_EQ(ErrorOf([&] { matrix.Value(1, 1); }), NumberOf(runtime::RuntimeError::ObjectNotSet));
  matrix.LetNrRows(2);
  matrix.LetNrCols(3);
  EXPECT_EQ(matrix.RowRef(2)->Size(), 3);
  const auto copy = matrix.GetCopy();
  copy->Row(2)->LetValue(1, 8);  // a copy of a copy
  EXPECT_TRUE(copy->IsEqual(matrix));
  copy->RowRef(2)->LetValue(1, 8);
  EXPECT_FALSE(copy->IsEqual(matrix));
}

TEST(CDblMatrix, SortsRowsAsTheInsertionSortDoes) {
  CDblMatrix matrix;
  Fill(matrix, {{3, 1}, {std::numeric_limits<double>::quiet_NaN(), 2}, {1, 3}, {3, 4}, {4, 5}});
  EXPECT_FALSE(matrix.IsEqual(matrix));  // not-a-number
  matrix.Sort(1);
  EXPECT_EQ(ToUtf8(matrix.Col(2)->GetString()), "(3;1;2;4;5)");
  matrix.Sort(1, false);
  EXPECT_EQ(ToUtf8(matrix.Col(2)->GetString()), "(5;1;4;3;2)");
  matrix.LetNrCols(17);
  matrix.RowRef(5)->LetSize(2);
  matrix.RowRef(1)->LetValue(17, 1);
  EXPECT_EQ(ErrorOf([&] { matrix.Sort(17); }), kSubscript);  // before any row moves
  EXPECT_EQ(matrix.Value(2, 1), 5);
}

TEST(CMatrix, SortsTextsIgnoringCaseBehindNumbers) {
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  CMatrix matrix;
  Fill<CMatrix>(matrix, {{u"b"}, {u"B"}, {u"a"}, {10}, {u"A"}, {9.5}});
  matrix.Sort(1);
  EXPECT_EQ(Shown(matrix), "1: (9.5)(10)(a)(A)(b)(B)");
}

template <class Matrix>
void ExpectGolden(const Matrix& pMatrix, const char* pFile, std::int32_t pLoadError) {
  const std::string golden = ReadTestFile(std::string("golden/") + pFile);
  CBuffer buffer;
  pMatrix.SaveToBuffer(&buffer);
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));
  Matrix loaded;
  Fill(loaded, {{1}, {2}, {3}});
  EXPECT_EQ(ErrorOf([&] { loaded.LoadFromBuffer(&buffer); }), pLoadError);
  EXPECT_EQ(loaded.NrRows(), 2);
  EXPECT_EQ(loaded.IsEqual(pMatrix), pLoadError == 0) << Shown(loaded);
}

TEST(Matrices, SaveTheGoldenBytesAndLoadDoubles) {
  CDblMatrix doubles;
  Fill(doubles, {{1.5, kInvalidDouble}, {0, 2}});
  doubles.RowRef(2)->AddValue(3);
  ExpectGolden(doubles, "CDblMatrix.bin", 0);

  CMatrix values;
  Fill<CMatrix>(values, {{u"\u00C4a", 7}, {true, -0.5}});
  ExpectGolden(values, "CMatrix.bin", NumberOf(BuiltInError::InvVarType));
}

}  // namespace
}  // namespace qzbase::tests
