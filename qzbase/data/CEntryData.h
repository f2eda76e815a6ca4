// A small table of typed values: columns, each a CVector with its own value type, of one number of rows.
//
//   CEntryData data;
//   data.AddCol(EVTString);
//   data.AddCol(EVTDouble);
//   data.AddRow();                  // "~" and -9.9999999999E+300: the invalid values of the types
//   data.LetValue(1, 1, u"Iron");
//   data.LetValue(2, 1, 7.874);
//   data.Sort(2, true);             // the names follow
//
// Columns and rows count from 1. There are as many column slots as columns, at least one; outside them error 9 is
// raised, whatever the number of columns. A slot may hold no column: `LetNrCols` makes slots alone, and `LetVarType`,
// `SetCol` or an insertion then put columns there. `LetNrRows`, `InsertRow` and `DeleteRow` pass over such a slot,
// moving and deleting columns does not mind; everything else that needs its column raises error 91.
//
// A row index is checked by the column, against its slots and not its size (CVector.h). Columns are objects that `Col`
// hands out: who changes the size of one, or puts one of another length in place, has a table whose columns differ in
// length.
//
// Record: tag "EntryData#1", `NrCols` and `NrRows` as longs, for each column its type as a long and its own record, tag
// "\EntryData". Columns of EVTInvalid and EVTColor are written but raise InvVarType when they are read.
//
// Raises 6 where a count leaves 32 bits, 7 where memory does not suffice, and what columns and buffer raise. What was
// reached before an error stays; copying, sorting and moving a column change nothing where they fail.
#pragma once

#include <cstdint>
#include <vector>

#include "qzbase/core/QZVarType.h"
#include "qzbase/data/BlockStorage.h"
#include "qzbase/data/CDblMatrix.h"
#include "qzbase/data/CVector.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class CEntryData final : public runtime::Object {
 public:
  void Clear();

  // New slots hold no column; columns behind a smaller number are dropped, but for the one in slot 1, which is always
  // there.
  std::int32_t NrCols() const noexcept { return cols_.Size(); }
  void LetNrCols(std::int32_t pNrCols) { cols_.LetSize(pNrCols); }

  // Another type drops the values: a new column takes the place, with `NrRows` empty elements. So it does where the
  // slot holds none.
  QZVarType VarType(std::int32_t pIdx) const { return ColumnAt(pIdx).VarType(); }
  void LetVarType(std::int32_t pIdx, QZVarType pVarType);

  // The column itself. The set stores the given object, error 91 where it is unset; the let copies its contents.
  runtime::Ref<CVector> Col(std::int32_t pIdx) const;
  void SetCol(std::int32_t pIdx, runtime::Ref<CVector> pCol);
  void LetCol(std::int32_t pIdx, const CVector& pCol) { ColumnAt(pIdx).CopyFrom(pCol); }

  // A new column of `NrRows` empty elements; the last one for a position below 1 or past the end.
  void InsertCol(QZVarType pVarType, std::int32_t pPos);
  void AddCol(QZVarType pVarType) { InsertCol(pVarType, 0); }

  // The columns between the two positions move by one towards the old one.
  void MoveCol(std::int32_t pOldPos, std::int32_t pNewPos);

  // An index past the end drops the last column. Without columns nothing happens, whatever the index.
  void DeleteCol(std::int32_t pIdx);

  // A new number gives every column this size and its last row, which may be one of the old, the invalid value; further
  // new rows are empty, or what their slots held before.
  std::int32_t NrRows() const noexcept { return nrRows_; }
  void LetNrRows(std::int32_t pNrRows);

  // A new row holds the invalid values of the types; it is the last one for a position below 1 or past the end.
  void InsertRow(std::int32_t pAtPos);
  void AddRow() { InsertRow(0); }

  // An index past the end drops the last row; one below 1 raises error 9 when the row has been counted. Without rows
  // nothing happens.
  void DeleteRow(std::int32_t pIdx);

  const runtime::Variant& Value(std::int32_t pColIdx, std::int32_t pRowIdx) const {
    return ColumnAt(pColIdx).Value(pRowIdx);
  }
  void LetValue(std::int32_t pColIdx, std::int32_t pRowIdx, const runtime::Variant& pValue) {
    ColumnAt(pColIdx).LetValue(pRowIdx, pValue);
  }

  // Sorts the rows by one column, in the order of `CVector.Sort`; rows with equal keys keep theirs. Slots behind the
  // elements of a column sort along; error 9 where one has fewer slots than `NrRows`, 13 where a key is an object or
  // array.
  void Sort(std::int32_t pColIdx, bool pAscending);

  // Takes the columns of a matrix, as columns of doubles.
  void CopyFromValues(const CDblMatrix& pSource);

  // Columns are replaced by copies; whoever holds one of the old columns keeps it.
  void CopyFrom(const CEntryData& pSource);
  runtime::Ref<CEntryData> GetCopy() const;

  // Columns are equal when their types are and the values of the rows, whatever stands behind them.
  bool IsEqual(const CEntryData& pCompare) const;

  // Without a buffer both do nothing. Loading replaces the columns; slots that an error kept from being read hold none.
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false) const;
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 private:
  using Cols = BlockStorage<runtime::Ref<CVector>>;
  static constexpr std::int32_t kBlockSize = 1;

  CVector& ColumnAt(std::int32_t pIdx) const;  // error 91 where the slot holds none
  std::vector<CVector*> ColumnsToSort(std::int32_t pKey) const;
  std::int32_t RowsToSort(const std::vector<CVector*>& pColumns, bool pAscending) const;
  template <class Body>
  void ForEachColumn(Body pBody);  // but for slots that hold none

  Cols cols_{kBlockSize};
  std::int32_t nrRows_ = 0;
};

}  // namespace qzbase
