#include "qzbase/data/CTable.h"

#include <algorithm>
#include <utility>

#include "qzbase/persist/Record.h"
#include "qzbase/runtime/Attempt.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Demand.h"
#include "qzbase/runtime/Memory.h"
#include "qzbase/runtime/TextCompare.h"
#include "qzbase/text/ValueText.h"

namespace qzbase {
namespace {

// A column holds one value a row.
constexpr std::int32_t kColumnDims = 1;

// The type of a descriptor that is to be stored. Who asks the table for it gets copies: one that cannot be copied is
// refused before anything changes.
QZVarType TypeOf(const runtime::Ref<TEntryDesc>& pDesc) {
  if (!pDesc) runtime::Raise(runtime::RuntimeError::ObjectNotSet);
  return pDesc->GetCopy()->VarType();
}

// A column takes any value: one that its type or format cannot show, or that has no stated type, is shown as what it
// is, a date outside the calendar as its number of days.
std::u16string CellText(const runtime::Variant& pValue, const TEntryDesc& pDesc, const runtime::LocaleRules& pRules) {
  if (pValue.IsNull()) return std::u16string(kInvalidString);
  const auto textAs = [&](QZVarType pType, std::u16string_view pFormat) {
    return runtime::Attempt([&] { return ModConvert::ValueToString(pValue, pType, pFormat, true, pRules); });
  };
  const QZVarType own = VarTypeOf(pValue);
  auto text = textAs(pDesc.VarType() == EVTInvalid ? own : pDesc.VarType(), pDesc.OutFormat());
  if (!text) text = textAs(own, {});
  if (!text) text = textAs(EVTDouble, {});
  return text.value_or(std::u16string());
}

}  // namespace

void CTable::Clear() {
  descs_->LetSize(0);
  data_->Clear();
}

void CTable::LetNrCols(std::int32_t pNrCols) {
  descs_->LetSize(pNrCols);
  data_->LetNrCols(pNrCols);
}

// The dimensions of the stored descriptor are left alone, unlike those of a copied one: it is the caller's own.
void CTable::SetColDesc(std::int32_t pColIdx, runtime::Ref<TEntryDesc> pDesc) {
  const QZVarType type = TypeOf(pDesc);
  descs_->SetDesc(pColIdx, std::move(pDesc));
  data_->LetVarType(pColIdx, type);
}

void CTable::LetColDesc(std::int32_t pColIdx, const TEntryDesc& pDesc) {
  TEntryDesc& stored = descs_->At(pColIdx);
  stored.CopyFrom(pDesc);
  stored.LetNrDims(kColumnDims);
  data_->LetVarType(pColIdx, stored.VarType());
}

void CTable::AddCol(runtime::Ref<TEntryDesc> pDesc) {
  TypeOf(pDesc);
  LetNrCols(runtime::CheckedNarrow<std::int32_t>(std::int64_t{NrCols()} + 1));
  SetColDesc(NrCols(), std::move(pDesc));
}

void CTable::InsertCol(TEntryDesc& pDesc, std::int32_t pAtPos) {
  pDesc.LetNrDims(kColumnDims);
  descs_->InsertDesc(pDesc, pAtPos);
  data_->InsertCol(pDesc.VarType(), pAtPos);
}

// A position outside raises before a descriptor is lost.
void CTable::MoveCol(std::int32_t pOldPos, std::int32_t pNewPos) {
  if (pOldPos == pNewPos) return;
  for (const std::int32_t position : {pOldPos, pNewPos}) descs_->DescRef(position);
  descs_->MoveDesc(pOldPos, pNewPos);
  data_->MoveCol(pOldPos, pNewPos);
}

void CTable::DeleteCol(std::int32_t pAtPos) {
  descs_->DeleteDesc(pAtPos);
  data_->DeleteCol(pAtPos);
}

runtime::Ref<CTypedInfo> CTable::Row(std::int32_t pRowIdx) const {
  auto row = runtime::New<CTypedInfo>();
  row->LetNrInfos(NrCols());
  for (std::int32_t i = 1; i <= NrCols(); ++i) {
    row->LetDesc(i, descs_->At(i));
    row->LetValue(i, Value(i, pRowIdx));
  }
  return row;
}

std::u16string CTable::GetString() const {
  return runtime::WithMemory([this] {
    std::u16string text;
    for (std::int32_t col = 1; col <= NrCols(); ++col) text += descs_->At(col).ID() + u';';
    text += u'\n';
    AppendRows(text);
    return text;
  });
}

void CTable::AppendRow(std::u16string& pText, std::int32_t pRow, const runtime::LocaleRules& pRules) const {
  for (std::int32_t col = 1; col <= NrCols(); ++col) {
    pText += CellText(Value(col, pRow), descs_->At(col), pRules) + u';';
  }
  pText += u'\n';
}

// Rows that no column has ever written read alike: the first of them is repeated.
void CTable::AppendRows(std::u16string& pText) const {
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  if (NrRows() < 1) return;
  std::int32_t written = 0;
  for (std::int32_t col = 1; col <= NrCols(); ++col)
    written = std::max(written, data_->Col(col)->Slots().Written(NrRows()));
  runtime::CheckDemand(std::int64_t{NrRows()} - written, sizeof(char16_t));
  for (std::int32_t row = 1; row <= written; ++row) AppendRow(pText, row, rules);
  for (std::int32_t col = 1; col <= NrCols(); ++col) Value(col, NrRows());  // error 9 where a column has no such slot
  if (written == NrRows()) return;
  const std::size_t before = pText.size();
  AppendRow(pText, written + 1, rules);
  runtime::RepeatEnd(pText, pText.size() - before, NrRows() - written - 1);
}

// The rows go after the columns are there: those that stay lose theirs.
void CTable::SetupFrom(const CEntryDescs& pDesc) {
  descs_->CopyFrom(pDesc);
  data_->LetNrCols(NrCols());
  data_->LetNrRows(0);
  for (std::int32_t i = 1; i <= NrCols(); ++i) data_->LetVarType(i, descs_->At(i).VarType());
}

void CTable::CopyFromInfo(const CTypedInfo& pInfo) {
  descs_->CopyFrom(*pInfo.DescsRef());
  data_->LetNrCols(NrCols());
  data_->LetNrRows(1);
  for (std::int32_t i = 1; i <= NrCols(); ++i) {
    data_->LetVarType(i, descs_->At(i).VarType());
    data_->LetValue(i, 1, pInfo.Value(i));
  }
}

void CTable::CopyFrom(const CTable& pSource) {
  id_ = pSource.id_;
  descs_->CopyFrom(*pSource.descs_);
  data_->CopyFrom(*pSource.data_);
}

runtime::Ref<CTable> CTable::GetCopy() const {
  auto copy = runtime::New<CTable>();
  copy->CopyFrom(*this);
  return copy;
}

bool CTable::IsEqual(const CTable& pCompare) const {
  return runtime::EqualText(id_, pCompare.id_) && descs_->IsEqual(*pCompare.descs_) && data_->IsEqual(*pCompare.data_);
}

void CTable::SaveToBuffer(CBuffer* pBuffer, bool pAppend) const {
  SaveRecord(pBuffer, pAppend, u"Table#1", [this](CBuffer& buffer) {
    SaveField(buffer, id_);
    descs_->SaveToBuffer(&buffer, true);
    data_->SaveToBuffer(&buffer, true);
  });
}

void CTable::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& buffer) {
    LoadField(buffer, id_);
    descs_->LoadFromBuffer(&buffer, true);
    data_->LoadFromBuffer(&buffer, true);
  });
}

}  // namespace qzbase
