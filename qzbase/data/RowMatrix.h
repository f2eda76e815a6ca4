// A matrix kept by rows: CDblMatrix, whose rows are vectors of doubles, and CMatrix, whose rows are vectors of
// variants.
//
//   CDblMatrix matrix;
//   matrix.LetNrCols(3);
//   matrix.LetNrRows(2);              // two rows of three zeros
//   matrix.LetValue(3, 1, 0.5);       // column 3 of row 1
//   matrix.RowRef(1)->Sum();          // 0.5
//   matrix.Sort(3, false);            // row 1 stays in front
//
// Columns and rows count from 1. Rows are objects of their own, which `RowRef` hands out: what is changed in one is
// changed in the matrix. `NrCols` is the length that rows are meant to have; rows that were added, or changed from
// outside, may be longer or shorter.
//
// A column index is checked by the row, against its slots and not its size (ElementVector.h). The matrix has as many
// row slots as rows, at least one: slot 1 of a matrix without rows keeps the row that was deleted last, which is row 1
// again when `NrRows` grows. Outside the slots error 9 (subscript out of range) is raised, for a row that was never
// there 91 (object not set).
//
// Record: tag "MA#1", `NrCols` and `NrRows` as longs, the record of each row, tag "\MA".
//
// Raises 6 where a count leaves 32 bits, 7 where memory does not suffice, and what rows and the buffer raise. What was
// reached before an error stays; sorting and copying change nothing where they fail.
#pragma once

#include <cstdint>

#include "qzbase/data/ObjectStorage.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

// `Self` is the matrix's class, `RowTraits` its row of traits: the class of a row, and how rows compare when sorted.
template <class Self, class RowTraits>
class RowMatrix : public runtime::Object {
 public:
  using RowVector = typename RowTraits::RowVector;
  using Argument = typename RowVector::Argument;
  using Result = typename RowVector::Result;

  // A new number gives every row this size; the same one changes nothing, even where rows have other sizes.
  std::int32_t NrCols() const noexcept { return nrCols_; }
  void LetNrCols(std::int32_t pNrCols);

  // Every slot without a row gets one of `NrCols` elements, zero or empty. A number for whose rows there is no memory
  // changes nothing.
  std::int32_t NrRows() const noexcept { return rows_.Size(); }
  void LetNrRows(std::int32_t pNrRows);

  // Both change `NrCols` and each row: a position outside a row appends the invalid double there, an index behind a row
  // drops its last element.
  void InsertCol(std::int32_t pAtPos);
  void DeleteCol(std::int32_t pColIdx);

  // A new row of `NrCols` elements; the last one for a position below 1 or past the end.
  void InsertRow(std::int32_t pAtPos);

  // An index behind the rows drops the last one. Below 1 error 9, unless there is no row to move. A matrix without rows
  // counts below 0: a row can be added only after `NrRows` was set anew.
  void DeleteRow(std::int32_t pRowIdx) { rows_.Delete(pRowIdx); }

  // Appends a copy, which keeps its length.
  void AddRow(const RowVector& pRow);

  Result Value(std::int32_t pColIdx, std::int32_t pRowIdx) const { return RowAt(pRowIdx).Value(pColIdx); }
  void LetValue(std::int32_t pColIdx, std::int32_t pRowIdx, Argument pValue) {
    RowAt(pRowIdx).LetValue(pColIdx, pValue);
  }

  // A new vector of `NrRows` elements. The let takes as many from the given one.
  runtime::Ref<RowVector> Col(std::int32_t pColIdx) const;
  void LetCol(std::int32_t pColIdx, const RowVector& pCol);

  // A copy. The let stores the elements of the given vector in the slots of the row, whose size stays: a shorter vector
  // leaves the rest as it was, a longer one raises error 9 where the slots end.
  runtime::Ref<RowVector> Row(std::int32_t pRowIdx) const { return RowAt(pRowIdx).GetCopy(); }
  void LetRow(std::int32_t pRowIdx, const RowVector& pRow);

  // The row itself; unset for slot 1 of a matrix that never had a row.
  runtime::Ref<RowVector> RowRef(std::int32_t pRowIdx) const { return rows_.Slot(pRowIdx); }

  // Sorts the rows by one column; rows with equal values keep their order (VectorSort.h). Nothing happens for a column
  // outside 1 to `NrCols`. Error 9 where a row has no such slot; no row has moved then.
  void Sort(std::int32_t pCol, bool pAscending = true);
  void InverseRowOrder();

  // Rows are replaced by copies; whoever holds one of the old rows keeps it.
  void CopyFrom(const Self& pSource);
  runtime::Ref<Self> GetCopy() const;
  bool IsEqual(const Self& pCompare) const;

  // Without a buffer both do nothing. Loading replaces the rows; those that an error kept from being read are empty.
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false) const;
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 private:
  using Rows = ObjectStorage<RowVector>;

  RowVector& RowAt(std::int32_t pRowIdx) const;
  runtime::Ref<RowVector> NewRow() const;
  void InsertAt(std::int32_t pAtPos, runtime::Ref<RowVector> pRow);

  Rows rows_;
  std::int32_t nrCols_ = 0;
};

}  // namespace qzbase
