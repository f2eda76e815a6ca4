// The models of CObjVector, CDblVectors, CDblMatrix and CMatrix: what holds vectors and other objects.
#pragma once

#include "tests/models/VectorModels.h"

namespace qzbase::models {

using Something = Ref<runtime::Object>;

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
  Something At_(At pIndex) { return slots_[pIndex].object; }
  void LetRef(At pIndex, Something pObject) { slots_[pIndex].object = pObject; }
  Something Copy(At pIndex) { return CopyOf(slots_[pIndex].object); }
  Text Key(At pIndex) { return slots_[pIndex].key; }
  void LetKey(At pIndex, Text pKey) { slots_[pIndex].key = pKey; }
  void ReplaceObject(At pIndex, Text pKey, Something pValue) {
    slots_[pIndex].key = pKey;
    slots_[pIndex].object = CopyOf(pValue);
  }
  void AddObject(Text pKey, Something pValue) {
    slots_.LetSize(std::int64_t{Size()} + 1);
    ReplaceObject({Size()}, pKey, pValue);
  }
  void DeleteObject(At pIndex) {
    slots_.Close(pIndex, Size());
    slots_.LetSize(std::int64_t{Size()} - 1);
  }
  Text GetUniqueKey(Text pKey) {
    Text key = pKey;
    for (Long i = 1; Index(key) != -1; ++i) key = pKey + runtime::ToText(i);
    return key;
  }
  Long Index(Text pKey) {
    for (Long i = 1; i <= Size(); ++i)
      if (runtime::EqualText(slots_[i].key, pKey)) return i;
    return -1;
  }
  Ref<Vector<Text>> KeyVec() {
    auto keys = New<Vector<Text>>();
    keys->LetSize({{Size()}});
    for (Long i = 1; i <= Size(); ++i) keys->LetValue({i}, slots_[i].key);
    return keys;
  }
  void CopyFrom(ObjVector& pSource) {
    slots_.LetSize(pSource.Size());
    for (Long i = 1; i <= pSource.Size(); ++i) {
      slots_[i].key = pSource.slots_[i].key;
      slots_[i].object = pSource.Copy({i});
    }
  }
  static constexpr auto kTag = u"VO#1";
  void Write(Buffer& pBuffer) {
    pBuffer.AddLong(Size());
    for (Long i = 1; i <= Size(); ++i) {
      pBuffer.AddString(slots_[i].key);
      The(slots_[i].object).Call(u"SaveToBuffer", pBuffer.shared_from_this(), true);
    }
  }
  void Read(Buffer& pBuffer) {
    slots_.LetSize(pBuffer.NextCount());
    for (Long i = 1; i <= Size(); ++i) {
      const Text text = pBuffer.NextString();
      The(slots_[i].object).Let(u"", text);
      slots_[i].object->Call(u"LoadFromBuffer", pBuffer.shared_from_this(), true);
    }
  }

  static Members Rows() {
    using V = ObjVector;
    return AllOf(Both(u"Size", &V::Size, &V::LetSize), Both(u"Ref", &V::At_, &V::LetRef), Gets(u"Copy", &V::Copy),
                 Both(u"Key", &V::Key, &V::LetKey), Does(u"ReplaceObject", &V::ReplaceObject),
                 Does(u"AddObject", &V::AddObject), Does(u"AddObject", &V::AddObject),
                 Does(u"DeleteObject", &V::DeleteObject), Does(u"GetUniqueKey", &V::GetUniqueKey),
                 Does(u"Index", &V::Index), Does(u"KeyVec", &V::KeyVec), Lets(u"BlockSize", &V::LetBlockSize),
                 CopyRows(), SaveRows());
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
    for (Long i = 1; i <= size_; ++i)
      if (!slots_[i]) {
        slots_[i] = New<DblVector>();
        slots_[i]->LetBlockSize({{size_}});
      }
  }
  void InsertVector(DblVector& pVector, At pPos) {
    const Ref<DblVector> copy = pVector.GetCopy();  // before there is room for it
    LetSize({{Checked(std::int64_t{size_} + 1)}});
    const Long at = Inside(pPos, size_);
    slots_.Open(at, size_);
    slots_[at] = copy;
  }
  void AddVector(DblVector& pVector) { InsertVector(pVector, {0}); }
  void DeleteVector(At pIndex) {
    if (size_ >= 1) Delete(pIndex);
  }
  void LetBlockSize(Block pBlockSize) {
    Each([&](DblVector& pVector) { pVector.LetBlockSize(pBlockSize); });
  }
  void CopyFrom(V& pSource) {
    LetSize({{pSource.size_}});
    for (Long i = 1; i <= size_; ++i) Stored(i).CopyFrom(pSource.Stored(i));
  }
  bool IsEqual(V& pCompare) { return SameElements(pCompare); }
  static constexpr auto kTag = u"DblVectors#1";
  void Write(Buffer& pBuffer) { this->WriteElements(pBuffer); }
  void Read(Buffer& pBuffer) {
    LetSize({{pBuffer.NextCount(4)}});
    for (Long i = 1; i <= size_; ++i) {
      auto vector = New<DblVector>();
      vector->LoadFromBuffer(&pBuffer, true);
      slots_[i] = vector;
    }
  }

  static Members Rows() {
    return AllOf(Both(u"Size", &V::Size, &V::LetSize), Gets(u"Vector", &V::Copy), Lets(u"Vector", &V::LetStored),
                 Sets(u"Vector", &V::SetStored), Does(u"InsertVector", &V::InsertVector),
                 Does(u"AddVector", &V::AddVector), Does(u"DeleteVector", &V::DeleteVector),
                 Shown(Does(u"VectorRef", &V::Reference)), Lets(u"BlockSize", &V::LetBlockSize), Family());
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
    for (Long i = 1; i <= size_; ++i)
      if (!slots_[i]) slots_[i] = NewRow();
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
  void AddRow(RowVector& pRow) { Insert({0}, pRow.GetCopy()); }
  void DeleteRow(At pRowIdx) { this->Delete(pRowIdx); }
  T Value(At pColIdx, At pRowIdx) { return Stored(pRowIdx).Value(pColIdx); }
  void LetValue(At pColIdx, At pRowIdx, T pValue) { Stored(pRowIdx).LetValue(pColIdx, pValue); }
  Ref<RowVector> Col(At pColIdx) {
    auto col = New<RowVector>();
    col->LetSize({{size_}});
    for (Long r = 1; r <= size_; ++r) col->LetValue({r}, Value(pColIdx, {r}));
    return col;
  }
  void LetCol(At pColIdx, RowVector& pCol) {
    for (Long r = 1; r <= size_; ++r) LetValue(pColIdx, {r}, pCol.Value({r}));
  }
  void LetRow(At pRowIdx, RowVector& pRow) {
    RowVector& row = Stored(pRowIdx);
    for (Long c = 1; c <= pRow.Size(); ++c) row.LetValue({c}, pRow.Value({c}));
  }

  // The whole column is read before a row moves.
  void Sort(At pCol, std::optional<bool> pAscending) {
    if (pCol < 1 || pCol > nrCols_ || size_ == 0) return;
    for (Long r = 1; r <= size_; ++r) {
      const Variant key = Value(pCol, {r});
      if (size_ > 1) runtime::Compare(key, key);
    }
    for (Long k = 1; k <= size_; ++k) {
      const Ref<RowVector> row = slots_[k];
      Long j = 1;
      while (j < k && !IsBehind(Value(pCol, {j}), row->Value(pCol), pAscending.value_or(true))) ++j;
      slots_.Open(j, k);
      slots_[j] = row;
    }
  }
  static bool IsBehind(const T& pElement, const T& pKey, bool pAscending) {
    if constexpr (std::is_same_v<T, Variant>)
      return RowVector::InSort(pElement, pKey, [](const Variant& pLeft, const Variant& pRight, const auto& pRules) {
               return runtime::Compare(pLeft, pRight, runtime::CaseRule::IgnoreCase, pRules);
             }) == (pAscending ? runtime::Order::Greater : runtime::Order::Less);
    else
      return pAscending ? pElement > pKey : pElement < pKey;
  }
  void InverseRowOrder() {
    const Long half = runtime::RoundToLong(size_ / 2.0);
    for (Long i = 1; i <= half; ++i) std::swap(slots_[i], slots_[size_ - i + 1]);
  }
  void CopyFrom(M& pSource) {
    M copies;
    copies.Resize(pSource.size_);
    for (Long i = 1; i <= pSource.size_; ++i) copies.slots_[i] = pSource.Copy({i});
    nrCols_ = pSource.nrCols_;
    size_ = pSource.size_;
    slots_ = copies.slots_;
  }
  bool IsEqual(M& pCompare) { return nrCols_ == pCompare.nrCols_ && this->SameElements(pCompare); }
  static constexpr auto kTag = u"MA#1";
  void Write(Buffer& pBuffer) {
    pBuffer.AddLong(nrCols_);
    this->WriteElements(pBuffer);
  }
  void Read(Buffer& pBuffer) {
    nrCols_ = pBuffer.NextLong();
    const Long count = pBuffer.NextCount();
    slots_ = {};
    Resize(count);
    for (Long i = 1; i <= size_; ++i) slots_[i] = New<RowVector>();
    Each([&](RowVector& pRow) { pRow.LoadFromBuffer(&pBuffer, true); });
  }

  static Members Rows() {
    return AllOf(Both(u"NrCols", &M::NrCols, &M::LetNrCols), Both(u"NrRows", &M::Size, &M::LetNrRows),
                 Does(u"InsertCol", &M::InsertCol), Does(u"DeleteCol", &M::DeleteCol),
                 Does(u"InsertRow", &M::InsertRow), Does(u"DeleteRow", &M::DeleteRow), Does(u"AddRow", &M::AddRow),
                 Both(u"Value", &M::Value, &M::LetValue), Lets(u"Value", &M::LetValue), Gets(u"Col", &M::Col),
                 Lets(u"Col", &M::LetCol), Gets(u"Row", &M::Copy), Lets(u"Row", &M::LetRow),
                 Shown(Gets(u"RowRef", &M::Reference)), Does(u"Sort", &M::Sort), Does(u"Sort", &M::Sort),
                 Does(u"InverseRowOrder", &M::InverseRowOrder), M::Family());
  }

 private:
  Ref<RowVector> NewRow() {
    auto row = New<RowVector>();
    row->LetSize({{nrCols_}});
    return row;
  }

  Long nrCols_ = 0;
};

}  // namespace qzbase::models
