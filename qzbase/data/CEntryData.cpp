#include "qzbase/data/CEntryData.h"

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "qzbase/data/RowMoves.h"
#include "qzbase/data/VectorSort.h"
#include "qzbase/persist/Record.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/CheckedNarrow.h"
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

std::int32_t OneMore(std::int32_t pCount) {
  return CheckedNarrow<std::int32_t>(std::int64_t{pCount} + 1);
}

}  // namespace

CVector& CEntryData::ColumnAt(std::int32_t pIdx) const {
  const Ref<CVector>& column = cols_.Slot(pIdx);
  if (!column) Raise(RuntimeError::ObjectNotSet);
  return *column;
}

template <class Body>
void CEntryData::ForEachColumn(Body pBody) {
  for (std::int32_t i = 1; i <= NrCols(); ++i)
    if (const Ref<CVector>& column = cols_.Slot(i)) pBody(*column);
}

void CEntryData::Clear() {
  cols_ = Cols(kBlockSize);
  nrRows_ = 0;
}

// The one slot of a table without columns stays, but not what it held.
void CEntryData::LetNrCols(std::int32_t pNrCols) {
  cols_.LetSize(pNrCols);
  if (pNrCols < 1) cols_.Store(1, nullptr);
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
  LetNrCols(OneMore(NrCols()));
  cols_.Insert(pPos, std::move(column));
}

void CEntryData::MoveCol(std::int32_t pOldPos, std::int32_t pNewPos) {
  if (pOldPos == pNewPos) return;
  Ref<CVector> moved = cols_.Slot(pOldPos);
  cols_.Slot(pNewPos);  // raises before anything is moved
  const auto at = cols_.Elements().begin() - 1;
  if (pOldPos < pNewPos)
    std::rotate(at + pOldPos, at + pOldPos + 1, at + pNewPos + 1);
  else
    std::rotate(at + pNewPos, at + pOldPos, at + pOldPos + 1);
}

void CEntryData::DeleteCol(std::int32_t pIdx) {
  if (NrCols() < 1) return;
  cols_.Delete(pIdx);
  LetNrCols(NrCols());
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
  nrRows_ = OneMore(nrRows_);
  ForEachColumn([pAtPos](CVector& column) { column.InsertValue(pAtPos, InvalidValueOf(column.VarType())); });
}

// The rows are counted last: an index that the columns refuse changes nothing.
void CEntryData::DeleteRow(std::int32_t pIdx) {
  if (nrRows_ < 1) return;
  ForEachColumn([pIdx](CVector& column) { column.DeleteValue(pIdx); });
  --nrRows_;
}

// Every column must have all rows before the first one moves.
std::vector<std::span<Variant>> CEntryData::RowsOfColumns() const {
  std::vector<std::span<Variant>> columns;
  columns.reserve(static_cast<std::size_t>(std::max(NrCols(), 0)));
  for (std::int32_t i = 1; i <= NrCols(); ++i) {
    CVector& column = ColumnAt(i);
    if (column.Size() < nrRows_) Raise(RuntimeError::SubscriptOutOfRange);
    columns.push_back(column.Elements().first(static_cast<std::size_t>(std::max(nrRows_, 0))));
  }
  return columns;
}

void CEntryData::Sort(std::int32_t pColIdx, bool pAscending) {
  ColumnAt(pColIdx);
  runtime::WithMemory([&] {
    const auto columns = RowsOfColumns();
    const RowMoves moves(SortedOrder(columns[static_cast<std::size_t>(pColIdx) - 1], pAscending));
    for (const std::span<Variant> column : columns) moves.Apply(column);
  });
}

void CEntryData::CopyFromValues(const CDblMatrix& pSource) {
  Cols cols(kBlockSize);
  cols.LetSize(pSource.NrCols());
  for (std::int32_t col = 1; col <= cols.Size(); ++col) {
    Ref<CVector> column = NewColumn(EVTDouble, pSource.NrRows());
    std::int32_t row = 0;
    for (Variant& value : column->Elements()) value = pSource.Value(col, ++row);
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
    if (!ColumnAt(i).IsEqual(pCompare.ColumnAt(i))) return false;
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
    const std::int32_t nrCols = buffer.NextCount(kLeastColumn);
    const std::int32_t nrRows = buffer.NextLong();
    Clear();
    LetNrCols(nrCols);
    nrRows_ = nrRows;
    for (std::int32_t i = 1; i <= nrCols; ++i) {
      cols_.Store(i, NewColumn(static_cast<QZVarType>(buffer.NextLong()), 0));
      ColumnAt(i).LoadFromBuffer(&buffer, true);
    }
  });
}

}  // namespace qzbase
