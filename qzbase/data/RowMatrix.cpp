#include "qzbase/data/RowMatrix.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "qzbase/data/CDblMatrix.h"
#include "qzbase/data/CMatrix.h"
#include "qzbase/data/VectorSort.h"
#include "qzbase/persist/Record.h"
#include "qzbase/runtime/CheckedNarrow.h"

namespace qzbase {
namespace {

constexpr std::u16string_view kTag = u"MA#1";

std::int32_t Sum(std::int32_t pCount, std::int32_t pMore) {
  return runtime::CheckedNarrow<std::int32_t>(std::int64_t{pCount} + pMore);
}

}  // namespace

template <class Self, class RowTraits>
auto RowMatrix<Self, RowTraits>::RowAt(std::int32_t pRowIdx) const -> RowVector& {
  RowVector* row = rows_.Slot(pRowIdx).get();
  if (row == nullptr) runtime::Raise(runtime::RuntimeError::ObjectNotSet);
  return *row;
}

template <class Self, class RowTraits>
auto RowMatrix<Self, RowTraits>::NewRow() const -> runtime::Ref<RowVector> {
  auto row = runtime::New<RowVector>();
  row->LetSize(nrCols_);
  return row;
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::InsertAt(std::int32_t pAtPos, runtime::Ref<RowVector> pRow) {
  rows_.LetSize(Sum(NrRows(), 1));
  rows_.Insert(pAtPos, std::move(pRow));
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::LetNrCols(std::int32_t pNrCols) {
  if (pNrCols == nrCols_) return;
  nrCols_ = pNrCols;
  for (std::int32_t i = 0; i < NrRows(); ++i) RowAt(i + 1).LetSize(pNrCols);
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::LetNrRows(std::int32_t pNrRows) {
  rows_.Resize(pNrRows, [this] { return NewRow(); });
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::InsertCol(std::int32_t pAtPos) {
  nrCols_ = Sum(nrCols_, 1);
  for (std::int32_t i = 0; i < NrRows(); ++i) RowAt(i + 1).InsertValue(pAtPos);
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::DeleteCol(std::int32_t pColIdx) {
  nrCols_ = Sum(nrCols_, -1);
  for (std::int32_t i = 0; i < NrRows(); ++i) RowAt(i + 1).DeleteValue(pColIdx);
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::InsertRow(std::int32_t pAtPos) {
  InsertAt(pAtPos, NewRow());
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::AddRow(const RowVector& pRow) {
  InsertAt(0, pRow.GetCopy());
}

template <class Self, class RowTraits>
auto RowMatrix<Self, RowTraits>::Col(std::int32_t pColIdx) const -> runtime::Ref<RowVector> {
  auto col = runtime::New<RowVector>();
  col->LetSize(NrRows());
  for (std::int32_t i = 0; i < NrRows(); ++i) col->LetValue(i + 1, Value(pColIdx, i + 1));
  return col;
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::LetCol(std::int32_t pColIdx, const RowVector& pCol) {
  for (std::int32_t i = 0; i < NrRows(); ++i) LetValue(pColIdx, i + 1, pCol.Value(i + 1));
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::LetRow(std::int32_t pRowIdx, const RowVector& pRow) {
  RowAt(pRowIdx).CopySlots(pRow);
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::Sort(std::int32_t pCol, bool pAscending) {
  if (pCol < 1 || pCol > nrCols_) return;
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  runtime::WithMemory([&] {
    const auto rows = rows_.Elements();
    std::vector<typename RowTraits::Key> keys;
    keys.reserve(rows.size());
    for (std::int32_t i = 0; i < NrRows(); ++i) keys.emplace_back(Value(pCol, i + 1));
    if (keys.size() < 2) return;
    const auto order = SortedOrder(NrRows(), pAscending, [&](std::int32_t pFirst, std::int32_t pSecond) {
      return RowTraits::Compare(keys[static_cast<std::size_t>(pFirst)], keys[static_cast<std::size_t>(pSecond)], rules);
    });
    Rearrange(rows, order);
  });
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::InverseRowOrder() {
  std::ranges::reverse(rows_.Elements());
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::CopyFrom(const Self& pSource) {
  Rows rows;
  rows.LetSize(pSource.NrRows());
  for (std::int32_t i = 0; i < pSource.NrRows(); ++i) rows.Store(i + 1, pSource.Row(i + 1));
  nrCols_ = pSource.nrCols_;
  rows_ = std::move(rows);
}

template <class Self, class RowTraits>
runtime::Ref<Self> RowMatrix<Self, RowTraits>::GetCopy() const {
  auto copy = runtime::New<Self>();
  copy->CopyFrom(static_cast<const Self&>(*this));
  return copy;
}

template <class Self, class RowTraits>
bool RowMatrix<Self, RowTraits>::IsEqual(const Self& pCompare) const {
  if (nrCols_ != pCompare.nrCols_ || NrRows() != pCompare.NrRows()) return false;
  for (std::int32_t i = 0; i < NrRows(); ++i)
    if (!RowAt(i + 1).IsEqual(pCompare.RowAt(i + 1))) return false;
  return true;
}

template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::SaveToBuffer(CBuffer* pBuffer, bool pAppend) const {
  SaveRecord(pBuffer, pAppend, kTag, [this](CBuffer& buffer) {
    buffer.AddLong(nrCols_);
    buffer.AddLong(NrRows());
    for (std::int32_t i = 0; i < NrRows(); ++i) RowAt(i + 1).SaveToBuffer(&buffer, true);
  });
}

// The number of columns is only what new rows will have: no memory follows from it.
template <class Self, class RowTraits>
void RowMatrix<Self, RowTraits>::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& buffer) {
    nrCols_ = buffer.NextLong();
    const std::int32_t count = buffer.NextCount();
    rows_ = {};
    rows_.LetSize(count);
    for (std::int32_t i = 0; i < count; ++i) rows_.Store(i + 1, runtime::New<RowVector>());
    for (std::int32_t i = 0; i < count; ++i) RowAt(i + 1).LoadFromBuffer(&buffer, true);
  });
}

template class RowMatrix<CDblMatrix, DoubleRow>;
template class RowMatrix<CMatrix, VariantRow>;

}  // namespace qzbase
