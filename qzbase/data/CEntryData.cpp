#include "qzbase/data/CEntryData.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "qzbase/data/RowMoves.h"
#include "qzbase/data/VectorSort.h"
#include "qzbase/persist/Record.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Demand.h"
#include "qzbase/runtime/Memory.h"

namespace qzbase {
namespace {

using runtime::CheckedNarrow;
using runtime::Raise;
using runtime::Ref;
using runtime::RuntimeError;
using runtime::Variant;

Ref<CVector> NewColumn(QZVarType pVarType, std::int32_t pNrRows) {
  auto column = runtime::New<CVector>();
  column->LetVarType(pVarType);
  column->LetSize(pNrRows);
  return column;
}

// A type and a number of elements: what the record of a column has at least, with markers or without.
constexpr std::int32_t kLeastColumn = 8;

}  // namespace

CVector& CEntryData::ColumnAt(std::int32_t pIdx) const {
  const Ref<CVector>& column = cols_.Slot(pIdx);
  if (!column) Raise(RuntimeError::ObjectNotSet);
  return *column;
}

template <class Body>
void CEntryData::ForEachColumn(Body pBody) {
  const auto each = [&](const Ref<CVector>& pColumn) {
    if (pColumn) pBody(*pColumn);
  };
  cols_.Walk(NrCols(), each, [](const Ref<CVector>&, std::int32_t) {});
}

void CEntryData::Clear() {
  cols_ = Cols(kBlockSize);
  nrRows_ = 0;
}

void CEntryData::LetVarType(std::int32_t pIdx, QZVarType pVarType) {
  const Ref<CVector>& column = cols_.Slot(pIdx);
  if (!column || column->VarType() != pVarType) cols_.Store(pIdx, NewColumn(pVarType, nrRows_));
}

Ref<CVector> CEntryData::Col(std::int32_t pIdx) const {
  ColumnAt(pIdx);
  return cols_.Slot(pIdx);
}

void CEntryData::SetCol(std::int32_t pIdx, Ref<CVector> pCol) {
  if (!pCol) Raise(RuntimeError::ObjectNotSet);
  cols_.Store(pIdx, std::move(pCol));
}

void CEntryData::InsertCol(QZVarType pVarType, std::int32_t pPos) {
  Ref<CVector> column = NewColumn(pVarType, nrRows_);
  LetNrCols(CheckedNarrow<std::int32_t>(std::int64_t{NrCols()} + 1));
  cols_.Insert(pPos, std::move(column));
}

void CEntryData::MoveCol(std::int32_t pOldPos, std::int32_t pNewPos) {
  if (pOldPos != pNewPos) cols_.Move(pOldPos, pNewPos);
}

void CEntryData::DeleteCol(std::int32_t pIdx) {
  if (NrCols() > 0) cols_.Delete(pIdx);
}

void CEntryData::LetNrRows(std::int32_t pNrRows) {
  if (pNrRows == nrRows_) return;
  nrRows_ = pNrRows;
  ForEachColumn([pNrRows](CVector& column) {
    column.LetSize(pNrRows);
    if (pNrRows > 0) column.LetValue(pNrRows, InvalidValueOf(column.VarType()));
  });
}

void CEntryData::InsertRow(std::int32_t pAtPos) {
  nrRows_ = CheckedNarrow<std::int32_t>(std::int64_t{nrRows_} + 1);
  ForEachColumn([pAtPos](CVector& column) { column.InsertValue(pAtPos, InvalidValueOf(column.VarType())); });
}

void CEntryData::DeleteRow(std::int32_t pIdx) {
  if (nrRows_ < 1) return;
  --nrRows_;
  ForEachColumn([pIdx](CVector& column) { column.DeleteValue(pIdx); });
}

// The key column, and every other one as far as the columns are counted: slot 1 may be the key without columns. One
// that stands in several slots sorts once.
std::vector<CVector*> CEntryData::ColumnsToSort(std::int32_t pKey) const {
  std::vector<CVector*> columns = {&ColumnAt(pKey)};
  for (std::int32_t i = 1; i <= NrCols(); ++i)
    if (CVector* column = &ColumnAt(i); column != columns.front()) columns.push_back(column);
  std::sort(columns.begin() + 1, columns.end());
  columns.erase(std::unique(columns.begin() + 1, columns.end()), columns.end());
  for (CVector* column : columns) column->Slots().CheckCount(nrRows_);
  return columns;
}

// Rows that no column has ever written stay behind all others, unless a key belongs behind an empty one: then all rows
// are sorted, else one of those stands for all.
std::int32_t CEntryData::RowsToSort(const std::vector<CVector*>& pColumns, bool pAscending) const {
  std::int32_t rows = SlotsToSort(pColumns.front()->Slots(), nrRows_, pAscending);
  for (CVector* column : pColumns) rows = std::max(rows, column->Slots().Written(nrRows_));
  return rows;
}

void CEntryData::Sort(std::int32_t pColIdx, bool pAscending) {
  runtime::WithMemory([&] {
    const std::vector<CVector*> columns = ColumnsToSort(pColIdx);
    const std::int32_t rows = RowsToSort(columns, pAscending);
    const RowMoves moves(SortedOrder(columns.front()->Slots().FirstSlots(rows), pAscending));
    for (CVector* column : columns) moves.Apply(column->Slots().FirstSlots(rows));
  });
}

void CEntryData::CopyFromValues(const CDblMatrix& pSource) {
  Cols cols(kBlockSize);
  runtime::CheckDemand(pSource.NrCols(), sizeof(CVector) + sizeof(Ref<CVector>));
  cols.LetSize(pSource.NrCols());
  for (std::int32_t col = 1; col <= cols.Size(); ++col) {
    Ref<CVector> column = NewColumn(EVTDouble, pSource.NrRows());
    std::int32_t row = 0;
    for (Variant& value : column->Slots().Elements()) value = pSource.Value(col, ++row);
    cols.Store(col, std::move(column));
  }
  cols_ = std::move(cols);
  nrRows_ = pSource.NrRows();
}

void CEntryData::CopyFrom(const CEntryData& pSource) {
  Cols cols(kBlockSize);
  cols.LetSize(pSource.NrCols());
  for (std::int32_t i = 1; i <= cols.Size(); ++i) cols.Store(i, pSource.ColumnAt(i).GetCopy());
  cols_ = std::move(cols);
  nrRows_ = pSource.nrRows_;
}

Ref<CEntryData> CEntryData::GetCopy() const {
  auto copy = runtime::New<CEntryData>();
  copy->CopyFrom(*this);
  return copy;
}

bool CEntryData::IsEqual(const CEntryData& pCompare) const {
  if (NrCols() != pCompare.NrCols() || nrRows_ != pCompare.nrRows_) return false;
  for (std::int32_t i = 1; i <= NrCols(); ++i)
    if (VarType(i) != pCompare.VarType(i) || !ColumnAt(i).EqualSlots(pCompare.ColumnAt(i), nrRows_)) return false;
  return true;
}

void CEntryData::SaveToBuffer(CBuffer* pBuffer, bool pAppend) const {
  SaveRecord(pBuffer, pAppend, u"EntryData#1", [this](CBuffer& buffer) {
    buffer.AddLong(NrCols());
    buffer.AddLong(nrRows_);
    for (std::int32_t i = 1; i <= NrCols(); ++i) {
      const CVector& column = ColumnAt(i);
      SaveField(buffer, column.VarType());
      column.SaveToBuffer(&buffer, true);
    }
  });
}

// The record of a column says how many elements it has; the number of rows alone makes none.
void CEntryData::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& buffer) {
    cols_.AnnounceSize(buffer.NextCount(kLeastColumn));
    nrRows_ = buffer.NextLong();
    const std::int32_t nrCols = NrCols();
    cols_ = Cols(kBlockSize);
    LetNrCols(nrCols);
    for (std::int32_t i = 1; i <= nrCols; ++i) {
      cols_.Store(i, NewColumn(static_cast<QZVarType>(buffer.NextLong()), 0));
      ColumnAt(i).LoadFromBuffer(&buffer, true);
    }
  });
}

}  // namespace qzbase
