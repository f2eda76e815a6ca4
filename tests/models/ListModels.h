// The models of CObjVector, CDblVectors, CDblMatrix and CMatrix: what holds vectors and other objects.
#pragma once

#include "tests/models/VectorModels.h"

namespace qzbase::models {

class ObjVector final : public ModelOf<ObjVector> {
  struct Keyed {
    Text key;
    Something object;
  };

 public:
  static constexpr std::u16string_view kName = u"CObjVector";

  Long Size() { return slots_.size; }
  void LetSize(Count pSize) { slots_.LetSize(pSize); }
  void LetBlockSize(Block pBlockSize) { slots_.LetBlock(pBlockSize); }
  Something Reference(At pIndex) { return slots_[pIndex].object; }
  void LetRef(At pIndex, const Something& pObject) { slots_[pIndex].object = pObject; }
  Something Copy(At pIndex) { return CopyOf(slots_[pIndex].object); }
  Text Key(At pIndex) { return slots_[pIndex].key; }
  void LetKey(At pIndex, const Text& pKey) { slots_[pIndex].key = pKey; }
  void ReplaceObject(At pIndex, const Text& pKey, const Something& pValue) {
    slots_[pIndex].key = pKey;
    slots_[pIndex].object = CopyOf(pValue);
  }
  void AddObject(const Text& pKey, const Something& pValue) {
    slots_.LetSize(std::int64_t{Size()} + 1);
    ReplaceObject(Size(), pKey, pValue);
  }
  void DeleteObject(At pIndex) { slots_.Delete(pIndex); }
  Text GetUniqueKey(const Text& pKey) {
    Text key = pKey;
    for (Long i = 1; Index(key) != -1; ++i) key = pKey + runtime::ToText(i);
    return key;
  }
  Long Index(const Text& pKey) {
    for (Long i = 1; i <= Size(); ++i)
      if (runtime::EqualText(slots_[i].key, pKey)) return i;
    return -1;
  }
  Ref<Vector<Text>> KeyVec() {
    auto keys = New<Vector<Text>>();
    keys->LetSize(Size());
    for (Long i = 1; i <= Size(); ++i) keys->LetValue(i, slots_[i].key);
    return keys;
  }
  void CopyFrom(ObjVector& pSource) {
    slots_.LetSize(pSource.Size());
    for (Long i = 1; i <= pSource.Size(); ++i) {
      slots_[i].key = pSource.slots_[i].key;
      slots_[i].object = pSource.Copy(i);
    }
  }
  static constexpr auto kTag = u"VO#1";
  void Write(const Ref<Buffer>& pBuffer) {
    pBuffer->AddLong(Size());
    for (Long i = 1; i <= Size(); ++i) {
      pBuffer->AddString(slots_[i].key);
      The(slots_[i].object).Call(u"SaveToBuffer", pBuffer, true);
    }
  }
  void Read(const Ref<Buffer>& pBuffer, const Text&) {
    slots_.LetSize(pBuffer->NextCount());
    for (Long i = 1; i <= Size(); ++i) {
      const Text text = pBuffer->NextString();
      The(slots_[i].object).Let(u"", text);
      slots_[i].object->Call(u"LoadFromBuffer", pBuffer, true);
    }
  }

  static Members Rows() {
    using V = ObjVector;
    return Shown<&V::Size, &V::Key>() + As(u"Ref", Shown<&V::Reference>()) +
           Lets<&V::LetSize, &V::LetRef, &V::LetKey, &V::LetBlockSize>() +
           Calls<&V::Copy, &V::ReplaceObject, &V::AddObject, &V::AddObject, &V::DeleteObject, &V::GetUniqueKey,
                 &V::Index, &V::KeyVec>() +
           Copies() + Records();
  }

 private:
  static Something CopyOf(const Something& pObject) { return *The(pObject).Call(u"GetCopy").If<Something>(); }

  BlockSlots<Keyed> slots_{16};
};

class DblVectors final : public ListOf<DblVectors, DblVector> {
  using V = DblVectors;

 public:
  static constexpr std::u16string_view kName = u"CDblVectors";

  void LetSize(Count pSize) {
    Resize(pSize);
    Fill([&] {
      auto vector = New<DblVector>();
      vector->LetBlockSize(size_);
      return vector;
    });
  }
  void InsertVector(DblVector& pVector, At pPos) {
    const Ref<DblVector> copy = pVector.GetCopy();  // before there is room for it
    LetSize(Checked(std::int64_t{size_} + 1));
    const Long at = Inside(pPos, size_);
    slots_.Open(at, size_);
    slots_[at] = copy;
  }
  void AddVector(DblVector& pVector) { InsertVector(pVector, 0); }
  void DeleteVector(At pIndex) {
    if (size_ >= 1) Delete(pIndex);
  }
  void LetBlockSize(Block pBlockSize) {
    Each([&](DblVector& pVector) { pVector.LetBlockSize(pBlockSize); });
  }
  void CopyFrom(V& pSource) {
    LetSize(pSource.size_);
    for (Long i = 1; i <= size_; ++i) Stored(i).CopyFrom(pSource.Stored(i));
  }
  static constexpr auto kTag = u"DblVectors#1";
  void Read(const Ref<Buffer>& pBuffer, const Text&) {
    LetSize(pBuffer->NextCount(4));
    for (Long i = 1; i <= size_; ++i) {
      auto vector = New<DblVector>();
      vector->LoadFromBuffer(pBuffer, true);
      slots_[i] = vector;
    }
  }

  static Members Rows() {
    return Shown<&V::Size>() + As(u"VectorRef", Shown<&V::Reference>()) + Lets<&V::LetSize, &V::LetBlockSize>() +
           As(u"Vector", Calls<&V::Copy>() + Lets<&V::LetStored>() + Sets<&V::SetStored>()) +
           Calls<&V::InsertVector, &V::AddVector, &V::DeleteVector>() + Family();
  }
};

template <class T>
class Matrix final : public ListOf<Matrix<T>, Vector<T>> {
  using M = Matrix;
  using RowVector = Vector<T>;
  using M::ListOf::Each, M::ListOf::Insert, M::ListOf::Resize, M::ListOf::size_, M::ListOf::slots_;

 public:
  using M::ListOf::Stored;
  static constexpr std::u16string_view kName = std::is_same_v<T, double> ? u"CDblMatrix" : u"CMatrix";

  Long NrCols() { return nrCols_; }
  void LetNrCols(Count pNrCols) {
    if (nrCols_ == pNrCols) return;
    nrCols_ = pNrCols;
    Each([&](RowVector& pRow) { pRow.LetSize(pNrCols); });
  }
  void LetNrRows(Count pNrRows) {
    Resize(pNrRows);
    this->Fill([&] { return NewRow(); });
  }
  void InsertCol(At pAtPos) {
    nrCols_ = Checked(std::int64_t{nrCols_} + 1);
    Each([&](RowVector& pRow) { pRow.InsertValue(pAtPos, {}); });
  }
  void DeleteCol(At pColIdx) {
    nrCols_ = Checked(std::int64_t{nrCols_} - 1);
    Each([&](RowVector& pRow) { pRow.DeleteValue(pColIdx); });
  }
  void InsertRow(At pAtPos) { Insert(pAtPos, NewRow()); }
  void AddRow(RowVector& pRow) { Insert(0, pRow.GetCopy()); }
  void DeleteRow(At pRowIdx) { this->Delete(pRowIdx); }
  T Value(At pColIdx, At pRowIdx) { return Stored(pRowIdx).Value(pColIdx); }
  void LetValue(At pColIdx, At pRowIdx, const T& pValue) { Stored(pRowIdx).LetValue(pColIdx, pValue); }
  Ref<RowVector> Col(At pColIdx) {
    auto col = New<RowVector>();
    col->LetSize(size_);
    for (Long r = 1; r <= size_; ++r) col->LetValue(r, Value(pColIdx, r));
    return col;
  }
  void LetCol(At pColIdx, RowVector& pCol) {
    for (Long r = 1; r <= size_; ++r) LetValue(pColIdx, r, pCol.Value(r));
  }
  void LetRow(At pRowIdx, RowVector& pRow) {
    RowVector& row = Stored(pRowIdx);
    for (Long c = 1; c <= pRow.Size(); ++c) row.LetValue(c, pRow.Value(c));
  }

  // The whole column is read before a row moves.
  void Sort(At pCol, std::optional<bool> pAscending) {
    if (pCol < 1 || pCol > nrCols_ || size_ == 0) return;
    for (Long r = 1; r <= size_; ++r) {
      const Variant key = Value(pCol, r);
      if (size_ > 1) runtime::Compare(key, key);
    }
    const auto compare = [](const Variant& pLeft, const Variant& pRight, const runtime::LocaleRules& pRules) {
      return runtime::Compare(pLeft, pRight, runtime::CaseRule::IgnoreCase, pRules);
    };
    for (Long k = 1; k <= size_; ++k) {
      const Ref<RowVector> row = slots_[k];
      Long j = 1;
      while (j < k && !IsBehind(Value(pCol, j), row->Value(pCol), pAscending.value_or(true), compare)) ++j;
      slots_.Open(j, k);
      slots_[j] = row;
    }
  }
  void InverseRowOrder() {
    const Long half = runtime::RoundToLong(size_ / 2.0);
    for (Long i = 1; i <= half; ++i) std::swap(slots_[i], slots_[size_ - i + 1]);
  }
  void CopyFrom(M& pSource) {
    this->Replace(pSource.size_, [&](Long pRow) { return pSource.Copy(pRow); });
    nrCols_ = pSource.nrCols_;
  }
  bool IsEqual(M& pCompare) { return nrCols_ == pCompare.nrCols_ && M::ListOf::IsEqual(pCompare); }
  static constexpr auto kTag = u"MA#1";
  void Write(const Ref<Buffer>& pBuffer) {
    pBuffer->AddLong(nrCols_);
    M::ListOf::Write(pBuffer);
  }
  void Read(const Ref<Buffer>& pBuffer, const Text&) {
    nrCols_ = pBuffer->NextLong();
    const Long count = pBuffer->NextCount();
    slots_ = {};
    Resize(count);
    this->Fill([] { return New<RowVector>(); });
    Each([&](RowVector& pRow) { pRow.LoadFromBuffer(pBuffer, true); });
  }

  static Members Rows() {
    return Shown<&M::NrCols>() + As(u"NrRows", Shown<&M::Size>()) + As(u"RowRef", Shown<&M::Reference>()) +
           As(u"Row", Calls<&M::Copy>()) + Lets<&M::LetNrCols, &M::LetNrRows>() +
           Lets<&M::LetValue, &M::LetValue, &M::LetCol, &M::LetRow>() +
           Calls<&M::Value, &M::Col, &M::InsertCol, &M::DeleteCol, &M::InsertRow, &M::DeleteRow, &M::AddRow, &M::Sort,
                 &M::Sort, &M::InverseRowOrder>() +
           M::Family();
  }

 private:
  Ref<RowVector> NewRow() {
    auto row = New<RowVector>();
    row->LetSize(nrCols_);
    return row;
  }

  Long nrCols_ = 0;
};

}  // namespace qzbase::models
