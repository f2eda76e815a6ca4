// The models of CEntryData and CTable.
#pragma once

#include <algorithm>

#include "qzbase/text/ValueText.h"
#include "tests/models/DescModels.h"
#include "tests/models/ListModels.h"

namespace qzbase::models {

class EntryData final : public ListOf<EntryData, VarVector> {
 public:
  static constexpr std::u16string_view kName = u"CEntryData";

  void Clear() {
    size_ = nrRows_ = 0;
    slots_ = {};
  }
  void LetNrCols(Count pNrCols) { Resize(pNrCols); }
  QZVarType VarType(At pIdx) { return Stored(pIdx).VarType(); }
  void LetVarType(At pIdx, QZVarType pVarType) {
    if (!slots_[pIdx] || slots_[pIdx]->VarType() != pVarType) slots_[pIdx] = NewColumn(pVarType, nrRows_);
  }
  Ref<VarVector> Col(At pIdx) {
    Stored(pIdx);
    return slots_[pIdx];
  }
  void SetCol(At pIdx, const Ref<VarVector>& pCol) {
    The(pCol);
    slots_[pIdx] = pCol;
  }
  void InsertCol(QZVarType pVarType, At pPos) { Insert(pPos, NewColumn(pVarType, nrRows_)); }
  void AddCol(QZVarType pVarType) { InsertCol(pVarType, 0); }
  void MoveCol(At pOldPos, At pNewPos) {
    if (pOldPos == pNewPos) return;
    const Ref<VarVector> moved = slots_[pOldPos];
    slots_[pNewPos];  // there before anything moves
    for (std::int64_t i = pOldPos; i > pNewPos; --i) slots_[i] = slots_[i - 1];
    for (std::int64_t i = pOldPos; i < pNewPos; ++i) slots_[i] = slots_[i + 1];
    slots_[pNewPos] = moved;
  }
  void DeleteCol(At pIdx) {
    if (size_ >= 1) Delete(pIdx);
  }
  Long NrRows() { return nrRows_; }
  void LetNrRows(Count pNrRows) {
    if (pNrRows == nrRows_) return;
    nrRows_ = pNrRows;
    ForEachColumn([&](VarVector& pCol) {
      pCol.LetSize(nrRows_);
      if (nrRows_ > 0) pCol.LetValue(nrRows_, InvalidValueOf(pCol.VarType()));
    });
  }
  void InsertRow(At pAtPos) {
    nrRows_ = Checked(std::int64_t{nrRows_} + 1);
    ForEachColumn([&](VarVector& pCol) { pCol.InsertValue(pAtPos, InvalidValueOf(pCol.VarType())); });
  }
  void AddRow() { InsertRow(0); }
  void DeleteRow(At pIdx) {
    if (nrRows_ < 1) return;
    --nrRows_;
    ForEachColumn([&](VarVector& pCol) { pCol.DeleteValue(pIdx); });
  }
  Variant Value(At pColIdx, At pRowIdx) { return Stored(pColIdx).Value(pRowIdx); }
  void LetValue(At pColIdx, At pRowIdx, const Variant& pValue) { Stored(pColIdx).LetValue(pRowIdx, pValue); }

  // Changes nothing where it fails: every cell is looked at first.
  void Sort(At pColIdx, bool pAscending) {
    std::vector<VarVector*> cols = {&Stored(pColIdx)};
    this->Each([&](VarVector& pCol) {
      if (std::find(cols.begin(), cols.end(), &pCol) == cols.end()) cols.push_back(&pCol);
    });
    std::vector<Long> rows;  // in their new order
    for (Long k = 1; k <= nrRows_; ++k) {
      for (VarVector* each : cols) each->Slot(k);
      const auto isBehind = [&](Long pRow) { return IsBehind(cols[0]->Slot(pRow), cols[0]->Slot(k), pAscending); };
      rows.insert(std::find_if(rows.begin(), rows.end(), isBehind), k);
    }
    for (VarVector* each : cols) {
      std::vector<Variant> sorted;
      std::transform(rows.begin(), rows.end(), std::back_inserter(sorted), [&](Long pRow) { return each->Slot(pRow); });
      for (Long r = 1; r <= nrRows_; ++r) each->Slot(r) = sorted[static_cast<std::size_t>(r - 1)];
    }
  }
  void CopyFromValues(Matrix<double>& pSource) {
    Replace(pSource.NrCols(), [&](Long pCol) {
      Ref<VarVector> col = NewColumn(EVTDouble, pSource.Size());
      for (Long r = 1; r <= pSource.Size(); ++r) col->LetValue(r, pSource.Value(pCol, r));
      return col;
    });
    nrRows_ = pSource.Size();
  }
  void CopyFrom(EntryData& pSource) {
    Replace(pSource.size_, [&](Long pCol) { return pSource.Copy(pCol); });
    nrRows_ = pSource.nrRows_;
  }
  bool IsEqual(EntryData& pCompare) {
    if (size_ != pCompare.size_ || nrRows_ != pCompare.nrRows_) return false;
    for (Long c = 1; c <= size_; ++c) {
      VarVector &left = Stored(c), &right = pCompare.Stored(c);
      if (left.VarType() != right.VarType()) return false;
      for (Long r = 1; r <= nrRows_; ++r)
        if (!Same(left.Slot(r), right.Slot(r))) return false;
    }
    return true;
  }
  static constexpr auto kTag = u"EntryData#1";
  void Write(const Ref<Buffer>& pBuffer) {
    pBuffer->AddLong(size_);
    pBuffer->AddLong(nrRows_);
    this->Each([&](VarVector& pCol) {
      pBuffer->AddLong(pCol.VarType());
      pCol.SaveToBuffer(pBuffer, true);
    });
  }
  void Read(const Ref<Buffer>& pBuffer, const Text&) {
    size_ = pBuffer->NextCount(8);
    nrRows_ = pBuffer->NextLong();
    slots_ = {};
    Resize(size_);
    for (Long c = 1; c <= size_; ++c) {
      slots_[c] = NewColumn(static_cast<QZVarType>(pBuffer->NextLong()), 0);
      slots_[c]->LoadFromBuffer(pBuffer, true);
    }
  }

  static Members Rows() {
    using D = EntryData;
    return As(u"NrCols", Shown<&D::Size>()) + Shown<&D::VarType, &D::Col, &D::NrRows>() +
           As(u"Col", Lets<&D::LetStored>()) + Sets<&D::SetCol>() +
           Lets<&D::LetNrCols, &D::LetVarType, &D::LetNrRows, &D::LetNrRows, &D::LetValue, &D::LetValue>() +
           Calls<&D::Clear, &D::Col, &D::InsertCol, &D::AddCol, &D::AddCol, &D::MoveCol, &D::DeleteCol, &D::InsertRow,
                 &D::AddRow, &D::DeleteRow, &D::Value, &D::Sort, &D::Sort, &D::CopyFromValues>() +
           Family();
  }

 private:
  static Ref<VarVector> NewColumn(QZVarType pVarType, Long pNrRows) {
    auto col = New<VarVector>();
    col->LetVarType(pVarType);
    col->LetSize(pNrRows);
    return col;
  }
  void ForEachColumn(auto pBody) {
    for (Long c = 1; c <= size_; ++c)
      if (slots_[c]) pBody(*slots_[c]);
  }

  Long nrRows_ = 0;
};

class DescTable final : public ModelOf<DescTable> {
 public:
  static constexpr std::u16string_view kName = u"CTable";

  Text ID() { return id_; }
  void LetID(const Text& pID) { id_ = pID; }
  void Clear() {
    descs_->LetSize(0);
    data_->Clear();
  }
  Long NrCols() { return descs_->Size(); }
  void LetNrCols(Count pNrCols) {
    descs_->LetSize(pNrCols);
    data_->LetNrCols(pNrCols);
  }
  Ref<EntryDesc> ColDesc(At pColIdx) { return descs_->Copy(pColIdx); }
  // The descriptor is checked first; its copy gets the dimension, so that the stored one keeps its own.
  void SetColDesc(At pColIdx, const Ref<EntryDesc>& pDesc) {
    The(pDesc).GetCopy();
    descs_->SetStored(pColIdx, pDesc);
    data_->LetVarType(pColIdx, pDesc->VarType());
  }
  void LetColDesc(At pColIdx, EntryDesc& pDesc) {
    descs_->LetStored(pColIdx, pDesc);
    descs_->Stored(pColIdx).Var()[VarDesc::kNrDims] = 1;
    data_->LetVarType(pColIdx, descs_->Stored(pColIdx).VarType());
  }
  Ref<EntryDesc> ColDescRef(At pColIdx) { return descs_->Reference(pColIdx); }
  void AddCol(const Ref<EntryDesc>& pDesc) {
    The(pDesc).GetCopy();
    LetNrCols(Checked(std::int64_t{NrCols()} + 1));
    SetColDesc(NrCols(), pDesc);
  }
  void InsertCol(EntryDesc& pDesc, At pAtPos) {
    pDesc.Var()[VarDesc::kNrDims] = 1;
    descs_->InsertDesc(pDesc, pAtPos);
    data_->InsertCol(pDesc.VarType(), pAtPos);
  }
  void MoveCol(At pOldPos, At pNewPos) {
    for (const At& each : {pOldPos, pNewPos})  // before a descriptor moves
      if (pOldPos != pNewPos) descs_->Reference(each);
    descs_->MoveDesc(pOldPos, pNewPos);
    data_->MoveCol(pOldPos, pNewPos);
  }
  void DeleteCol(At pAtPos) {
    descs_->DeleteDesc(pAtPos);
    data_->DeleteCol(pAtPos);
  }
  Long ColIndex(const Text& pID) { return descs_->Index(pID); }
  Ref<VarVector> ColRef(At pIndex) { return data_->Col(pIndex); }
  Ref<TypedInfo> Row(At pRowIdx) {
    auto info = New<TypedInfo>();
    info->LetNrInfos(NrCols());
    for (Long i = 1; i <= NrCols(); ++i) {
      info->LetDesc(i, descs_->Stored(i));
      info->LetValue(i, data_->Value(i, pRowIdx));
    }
    return info;
  }
  Ref<EntryDescs> DescsRef() { return descs_; }
  Ref<EntryData> DataRef() { return data_; }
  void InverseRowOrder() {}
  void Sort(At pCol, std::optional<bool> pAscending) { data_->Sort(pCol, pAscending.value_or(true)); }
  Text GetString() {
    if (data_->NrRows() > 1000) throw TooMuch();
    Text text;
    for (Long r = 0; r == 0 || r <= data_->NrRows(); ++r) {  // below the heads
      for (Long c = 1; c <= NrCols(); ++c) {
        EntryDesc& desc = descs_->Stored(c);
        text += (r == 0 ? desc.ID() : Cell(data_->Value(c, r), desc.Var())) + u";";
      }
      text += u"\n";
    }
    return text;
  }
  // What type and format cannot show is shown as what it is, or as a number.
  static Text Cell(const Variant& pValue, VarDesc& pDesc) {
    if (pValue.IsNull()) return u"~";
    const QZVarType own = VarTypeOf(pValue), stated = pDesc.VarType() == EVTInvalid ? own : pDesc.VarType();
    const std::pair<QZVarType, Text> ways[] = {{stated, pDesc.TextOf(VarDesc::kFormat)}, {own, u""}, {EVTDouble, u""}};
    for (const auto& [type, format] : ways) {
      try {
        return ModConvert::ValueToString(pValue, type, format);
      } catch (const runtime::AutomationError&) {
      }
    }
    return u"";
  }
  void SetupFrom(EntryDescs& pDesc) {
    descs_->CopyFrom(pDesc);
    data_->LetNrCols(NrCols());
    data_->LetNrRows(0);
    for (Long i = 1; i <= NrCols(); ++i) data_->LetVarType(i, descs_->Stored(i).VarType());
  }
  void CopyFromInfo(TypedInfo& pInfo) {
    descs_->CopyFrom(*pInfo.DescsRef());
    data_->LetNrCols(pInfo.NrInfos());
    data_->LetNrRows(1);
    for (Long i = 1; i <= NrCols(); ++i) {
      data_->LetVarType(i, pInfo.DescsRef()->Stored(i).VarType());
      data_->LetValue(i, 1, pInfo.Value(i));
    }
  }
  void CopyFrom(DescTable& pSource) {
    id_ = pSource.id_;
    descs_->CopyFrom(*pSource.descs_);
    data_->CopyFrom(*pSource.data_);
  }
  bool IsEqual(DescTable& pCompare) {
    return runtime::EqualText(id_, pCompare.id_) && descs_->IsEqual(*pCompare.descs_) &&
           data_->IsEqual(*pCompare.data_);
  }
  static constexpr auto kTag = u"Table#1";
  void Write(const Ref<Buffer>& pBuffer) {
    pBuffer->AddString(id_);
    descs_->SaveToBuffer(pBuffer, true);
    data_->SaveToBuffer(pBuffer, true);
  }
  void Read(const Ref<Buffer>& pBuffer, const Text&) {
    id_ = pBuffer->NextString();
    descs_->LoadFromBuffer(pBuffer, true);
    data_->LoadFromBuffer(pBuffer, true);
  }

  static Members Rows() {
    using T = DescTable;
    return Shown<&T::ID, &T::NrCols, &T::DescsRef, &T::DataRef>() + Lets<&T::LetID, &T::LetNrCols, &T::LetColDesc>() +
           Sets<&T::SetColDesc>() +
           Calls<&T::Clear, &T::ColDesc, &T::ColDescRef, &T::AddCol, &T::AddCol, &T::InsertCol, &T::InsertCol,
                 &T::MoveCol, &T::DeleteCol, &T::ColIndex, &T::ColRef, &T::Row, &T::InverseRowOrder, &T::Sort,
                 &T::GetString, &T::SetupFrom, &T::CopyFromInfo>() +
           Through<T, EntryData>([](T& pTable) -> EntryData& { return *pTable.data_; },
                                 u"NrRows AddRow InsertRow DeleteRow Value") +
           Family();
  }

 private:
  Text id_;
  Ref<EntryDescs> descs_ = New<EntryDescs>();
  Ref<EntryData> data_ = New<EntryData>();
};

}  // namespace qzbase::models
