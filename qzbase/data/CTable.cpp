#include "qzbase/data/CTable.h"

#include <utility>

#include "qzbase/persist/Record.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Memory.h"
#include "qzbase/runtime/TextCompare.h"
#include "qzbase/text/ValueText.h"

namespace qzbase {
namespace {

// A column holds one value a row.
constexpr std::int32_t kColumnDims = 1;

// The type of a descriptor that is to be stored. Raises before anything is changed where there is none to be had.
QZVarType TypeOf(const runtime::Ref<TEntryDesc>& pDesc) {
  if (!pDesc) runtime::Raise(runtime::RuntimeError::ObjectNotSet);
  return pDesc->VarType();
}

// A column without a stated type shows each value as what it is.
std::u16string CellText(const runtime::Variant& pValue, const TEntryDesc& pDesc, const runtime::LocaleRules& pRules) {
  const QZVarType type = pDesc.VarType() == EVTInvalid ? VarTypeOf(pValue) : pDesc.VarType();
  return ModConvert::ValueToString(pValue, type, pDesc.OutFormat(), true, pRules);
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
    const runtime::LocaleRules& rules = runtime::ThreadLocale();
    std::u16string text;
    for (std::int32_t col = 1; col <= NrCols(); ++col) text += descs_->At(col).ID() + u';';
    text += u'\n';
    for (std::int32_t row = 1; row <= NrRows(); ++row) {
      for (std::int32_t col = 1; col <= NrCols(); ++col)
        text += CellText(Value(col, row), descs_->At(col), rules) + u';';
      text += u'\n';
    }
    return text;
  });
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

// The grid first: it may refuse, and nothing has changed then.
void CTable::CopyFrom(const CTable& pSource) {
  data_->CopyFrom(*pSource.data_);
  descs_->CopyFrom(*pSource.descs_);
  id_ = pSource.id_;
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
