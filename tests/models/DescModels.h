// The models of TVarDesc, TCtrlDesc, TEntryDesc, CVarDescs, CEntryDescs and CTypedInfo.
#pragma once

#include "qzbase/persist/Record.h"
#include "tests/models/VectorModels.h"

namespace qzbase::models {

// A field of a descriptor: in records and texts they stand in this order.
struct Field {
  Text name;
  Variant initial;
  Pair (*draw)(World&);
  Text label;  // in the text

  template <class T>
  static Field Of(const Text& pName, T pInitial, const Text& pLabel = {}) {
    return {pName, pInitial, &Argument<T>::Draw, pLabel.empty() ? pName : pLabel};
  }
  static Field Words(const Text& pName, const Text& pLabel = {}) { return Of(pName, Text(), pLabel); }
};
template <class Self>
class FieldsOf : public ModelOf<Self> {
 public:
  static inline const std::vector<Field> kFields = Self::Fields();
  std::vector<Variant> values;  // one for each field

  FieldsOf() {
    std::transform(kFields.begin(), kFields.end(), std::back_inserter(values),
                   [](auto& pEach) { return pEach.initial; });
  }
  Variant& operator[](std::size_t pField) { return values[pField]; }
  Variant Told(std::size_t pField) { return values[pField]; }
  Text TextOf(std::size_t pField) { return runtime::ToText(values[pField]); }
  Text ID() { return TextOf(0); }
  Text GetString() {
    Text text;
    for (std::size_t i = 0; i < kFields.size(); ++i) text += kFields[i].label + u":" + TextOf(i) + u"|";
    return text;
  }
  bool IsEqual(Self& pCompare) {
    for (std::size_t i = 0; i < values.size(); ++i)
      if (Itself().Compares(i) && !runtime::EqualText(TextOf(i), runtime::ToText(pCompare.Told(i)))) return false;
    return true;
  }
  void Write(const Ref<Buffer>& pBuffer) {
    for (std::size_t i = 0; i < values.size(); ++i)
      if (i == Self::kNrDims)
        pBuffer->AddByte(runtime::CheckedNarrow<Byte>(*values[i].If<Long>()));
      else if (Itself().IsSaved(i, 2))
        pBuffer->AddObject(values[i], {});
  }
  void ReadFields(const Ref<Buffer>& pBuffer, Long pVersion) {
    for (std::size_t i = 0; i < values.size(); ++i)
      if (i == Self::kNrDims)
        values[i] = Long{pBuffer->NextByte()};
      else if (Itself().IsSaved(i, pVersion))
        values[i] = pBuffer->NextOf(VarTypeOf(values[i]));
  }
  // A read and an assignment for each field.
  static Members FieldRows() {
    Members rows;
    for (std::size_t i = 0; i < kFields.size(); ++i) {
      const auto [name, initial, draw, label] = kFields[i];
      const auto get = [i](Model& pModel, std::span<Variant>) { return static_cast<Self&>(pModel).Told(i); };
      const auto let = [i](Model& pModel, std::span<Variant> pArguments) {
        return static_cast<Self&>(pModel)[i] = pArguments[0], Variant();
      };
      rows = rows + Members{{CallKind::Get, name, {}, 0, get, true}, {CallKind::Let, name, {draw}, 1, let}};
    }
    return rows;
  }

 private:
  Self& Itself() { return static_cast<Self&>(*this); }
};

class VarDesc final : public FieldsOf<VarDesc> {
 public:
  static constexpr std::u16string_view kName = u"TVarDesc";
  enum : std::size_t { kDisplayed = 1, kType = 3, kFormat = 4, kNrDims = 7, kUserDefined = 9 };
  static std::vector<Field> Fields() {
    return {Field::Words(u"ID"),
            Field::Words(u"Name"),
            Field::Words(u"Unit"),
            Field::Of(u"VarType", EVTString, u"Type"),
            Field::Words(u"OutFormat", u"Format"),
            Field::Of(u"IsFormula", false),
            Field::Words(u"Description"),
            Field::Of(u"NrDims", 0),
            Field::Words(u"Tag"),
            Field::Of(u"UserDefined", false)};
  }
  QZVarType VarType() { return static_cast<QZVarType>(*values[kType].If<Long>()); }
  bool IsUserDefined() { return *values[kUserDefined].If<bool>(); }
  Variant Told(std::size_t pField) {
    return values[pField == kDisplayed && runtime::EqualText(TextOf(kDisplayed), u"") ? 0 : pField];
  }
  bool Compares(std::size_t pField) { return pField != kDisplayed || IsUserDefined(); }
  static bool IsSaved(std::size_t pField, Long pVersion) { return pField != kUserDefined || pVersion > 1; }

  void CopyFrom(VarDesc& pSource) {
    const Variant name = pSource.Told(kDisplayed);
    values = pSource.values;
    values[kDisplayed] = name;
  }
  static constexpr auto kTag = u"VD#2";
  void Write(const Ref<Buffer>& pBuffer) {
    if (!IsUserDefined()) values[kDisplayed] = u"";
    FieldsOf::Write(pBuffer);
  }
  void Read(const Ref<Buffer>& pBuffer, const Text& pTag) { ReadFields(pBuffer, TagVersion(pTag)); }
  static Members Rows() {
    Members fields = FieldRows();
    fields.resize(2 * kUserDefined);  // which is a secret
    return fields + Shown<&VarDesc::GetString>() + Family();
  }
};

class CtrlDesc final : public FieldsOf<CtrlDesc> {
 public:
  static constexpr std::u16string_view kName = u"TCtrlDesc";
  enum : std::size_t { kSaveMask = 2, kRange = 3, kInterval = 4, kNrDims = 99 };  // it has none
  bool userDefined = false;
  static std::vector<Field> Fields() {
    return {Field::Words(u"ID"),         Field::Of(u"CtrlType", 1, u"Type"), Field::Of(u"SaveMask", true),
            Field::Words(u"Range"),      Field::Words(u"Interval"),          Field::Of(u"Width", 1000),
            Field::Of(u"Visible", true), Field::Of(u"Removable", false),     Field::Of(u"Locked", false)};
  }
  bool UserDefined() { return userDefined; }
  void LetUserDefined(bool pUserDefined) { userDefined = pUserDefined; }
  bool Compares(std::size_t pField) {
    return *values[kSaveMask].If<bool>() || (pField != kRange && pField != kInterval);
  }
  bool IsSaved(std::size_t pField, Long) { return Compares(pField); }

  void CopyFrom(CtrlDesc& pSource) { values = pSource.values; }
  static constexpr auto kTag = u"CD#2";
  void Read(const Ref<Buffer>& pBuffer, const Text& pTag) {
    ReadFields(pBuffer, 0);
    userDefined = TagVersion(pTag) < 2 && pBuffer->NextBoolean();
  }
  static Members Rows() {
    using D = CtrlDesc;
    return FieldRows() + Shown<&D::UserDefined>() + Lets<&D::LetUserDefined>() + Calls<&D::GetString>() + Family();
  }
};

class EntryDesc final : public ModelOf<EntryDesc> {
 public:
  static constexpr std::u16string_view kName = u"TEntryDesc";

  VarDesc& Var() { return The(var_); }
  CtrlDesc& Ctrl() { return The(ctrl_); }
  Text ID() { return Var().ID(); }
  void LetID(const Text& pID) {
    Var()[0] = pID;
    Ctrl()[0] = pID;
  }
  QZVarType VarType() { return Var().VarType(); }
  bool UserDefined() { return Var().IsUserDefined(); }
  void LetUserDefined(bool pUserDefined) { Var()[VarDesc::kUserDefined] = pUserDefined; }
  Ref<VarDesc> GetVarDesc() { return var_; }
  void SetVarDesc(const Ref<VarDesc>& pVarDesc) { var_ = pVarDesc; }
  Ref<CtrlDesc> GetCtrlDesc() { return ctrl_; }
  void SetCtrlDesc(const Ref<CtrlDesc>& pCtrlDesc) { ctrl_ = pCtrlDesc; }
  Text GetString() {
    const Text text = Ctrl().GetString();
    return text + Var().GetString();
  }
  void CopyFrom(EntryDesc& pSource) {
    Var().CopyFrom(pSource.Var());
    Ctrl().CopyFrom(pSource.Ctrl());
  }
  bool IsEqual(EntryDesc& pCompare) { return Var().IsEqual(pCompare.Var()) && Ctrl().IsEqual(pCompare.Ctrl()); }
  static constexpr auto kTag = u"ED#1";
  void Write(const Ref<Buffer>& pBuffer) {
    Var().SaveToBuffer(pBuffer, true);
    Ctrl().SaveToBuffer(pBuffer, true);
  }
  void Read(const Ref<Buffer>& pBuffer, const Text&) {
    Var().LoadFromBuffer(pBuffer, true);
    Ctrl().LoadFromBuffer(pBuffer, true);
    if (!ctrl_->userDefined) return;
    Var()[VarDesc::kUserDefined] = true;
    Var()[VarDesc::kDisplayed] = u"";
  }
  static Members Rows() {
    using D = EntryDesc;
    return Through<D, VarDesc>([](D& pEntry) -> VarDesc& { return pEntry.Var(); },
                               u"Name Unit VarType OutFormat IsFormula Description NrDims Tag") +
           Through<D, CtrlDesc>([](D& pEntry) -> CtrlDesc& { return pEntry.Ctrl(); },
                                u"CtrlType SaveMask Range Interval Width Visible Removable Locked") +
           Shown<&D::ID, &D::UserDefined>() + Lets<&D::LetID, &D::LetUserDefined>() +
           As(u"VarDesc", Shown<&D::GetVarDesc>()) + As(u"CtrlDesc", Shown<&D::GetCtrlDesc>()) +
           Sets<&D::SetVarDesc, &D::SetCtrlDesc>() + Calls<&D::GetString>() + Family();
  }

 private:
  Ref<VarDesc> var_ = New<VarDesc>();
  Ref<CtrlDesc> ctrl_ = New<CtrlDesc>();
};

template <class D>
class Descs final : public ListOf<Descs<D>, D> {
  using L = Descs;
  using L::ListOf::Each, L::ListOf::Resize, L::ListOf::size_, L::ListOf::slots_;
  static constexpr bool kIsVar = std::is_same_v<D, VarDesc>;

 public:
  using L::ListOf::Stored;
  static constexpr std::u16string_view kName = kIsVar ? u"CVarDescs" : u"CEntryDescs";

  void LetSize(Count pSize) {
    Resize(pSize);
    this->Fill([] { return New<D>(); });
    if (size_ < 1) slots_[1] = nullptr;
  }
  void AddDesc(D& pDesc) { InsertDesc(pDesc, 0); }
  void MoveDesc(At pOldPos, At pNewPos) {
    if (pOldPos == pNewPos) return;
    slots_[pOldPos];  // there before anything moves
    for (std::int64_t k = std::int64_t{pOldPos} - 1; k >= pNewPos; --k) slots_[k] = slots_[k + 1];
    for (std::int64_t k = pOldPos; k < pNewPos; ++k) slots_[k] = slots_[k + 1];
  }
  Long InsertDesc(D& pDesc, At pAtPos) { return this->Insert(pAtPos, pDesc.GetCopy()); }
  void DeleteDesc(At pIndex) {
    if (size_ < 1) return;
    slots_.Close(pIndex, size_);
    LetSize(size_ - 1);
  }
  Long Index(const Text& pID) {
    for (Long i = 1; i <= size_; ++i)
      if (runtime::EqualText(Stored(i).ID(), pID)) return i;
    return -1;
  }
  Text GetString() {
    Text text;
    for (Long i = 1; i <= size_; ++i) text += (i > 1 ? u";(" : u"(") + Stored(i).GetString() + u")";
    return text;
  }
  void CopyFrom(L& pSource) {
    LetSize(pSource.size_);
    for (Long i = 1; i <= size_; ++i) Stored(i).CopyFrom(pSource.Stored(i));
  }
  static constexpr auto kTag = kIsVar ? u"VV#1" : u"DV#1";
  void Read(const Ref<Buffer>& pBuffer, const Text&) {
    LetSize(pBuffer->NextCount(24));
    Each([&](D& pDesc) { pDesc.LoadFromBuffer(pBuffer, true); });
  }

  static Members Rows() {
    return Shown<&L::Size>() + Lets<&L::LetSize>() +
           As(u"Desc", Calls<&L::Copy>() + Sets<&L::SetStored>() + Lets<&L::LetStored>()) +
           As(u"DescRef", Shown<&L::Reference>() + Calls<&L::Reference>()) +
           Calls<&L::AddDesc, &L::MoveDesc, &L::InsertDesc, &L::DeleteDesc, &L::Index, &L::GetString>() + L::Family();
  }
};

using VarDescs = Descs<VarDesc>;
using EntryDescs = Descs<EntryDesc>;

class TypedInfo final : public ModelOf<TypedInfo> {
 public:
  static constexpr std::u16string_view kName = u"CTypedInfo";

  void Clear() {
    descs_->LetSize(0);
    values_ = {};
  }
  Long NrInfos() { return descs_->Size(); }
  void LetNrInfos(Count pNrInfos) {
    descs_->LetSize(pNrInfos);
    values_.ReDim(std::max<Long>(pNrInfos, 1));
  }
  void LetDesc(At pIndex, EntryDesc& pDesc) { descs_->LetStored(pIndex, pDesc); }
  void AddInfo(EntryDesc& pDesc, const Variant& pValue) {
    const Long n = Checked(std::int64_t{NrInfos()} + 1);
    LetNrInfos(n);
    LetDesc(n, pDesc);
    values_[n] = pValue;
  }
  void DeleteInfo(At pIndex) {
    const Long n = NrInfos();
    if (n < 1) return;
    descs_->DeleteDesc(pIndex);
    values_.Close(pIndex, n);
    LetNrInfos(n - 1);
  }
  Variant Value(At pIndex) { return values_[pIndex]; }
  void LetValue(At pIndex, const Variant& pValue) { values_[pIndex] = pValue; }
  Long Index(const Text& pID) { return descs_->Index(pID); }
  Variant GetValue(const Text& pID) {
    const Long i = Index(pID);
    return i > 0 ? values_[i] : Variant(u"");
  }
  void SetValue(const Text& pID, const Variant& pValue) { values_[Index(pID)] = pValue; }
  Ref<EntryDescs> DescsRef() { return descs_; }
  Text GetString() {
    Text text;
    for (Long i = 1; i <= NrInfos(); ++i) text += descs_->Stored(i).ID() + u";";
    text += u"\n";
    for (Long i = 1; i <= NrInfos(); ++i) text += runtime::ToText(values_[i]) + u";";
    return text;
  }
  void SetupFrom(EntryDescs& pDesc) {
    descs_->CopyFrom(pDesc);
    values_ = {};
    values_.ReDim(std::max(NrInfos(), 1));
  }
  void UpdateFrom(TypedInfo& pSource) {
    for (Long i = 1; i <= pSource.NrInfos(); ++i)
      if (const Long j = Index(pSource.descs_->Stored(i).ID()); j > 0) values_[j] = pSource.values_[i];
  }
  void CopyFrom(TypedInfo& pSource) {
    descs_->CopyFrom(*pSource.descs_);
    values_.ReDim(std::max(NrInfos(), 1));
    for (Long i = 1; i <= NrInfos(); ++i) values_[i] = pSource.values_[i];
  }
  bool IsEqual(TypedInfo& pCompare) {
    if (!descs_->IsEqual(*pCompare.descs_)) return false;
    for (Long i = 1; i <= NrInfos(); ++i)
      if (!Same(values_[i], pCompare.values_[i])) return false;
    return true;
  }
  static constexpr auto kTag = u"TypedInfo#1";
  void Write(const Ref<Buffer>& pBuffer) {
    descs_->SaveToBuffer(pBuffer, true);
    for (Long i = 1; i <= NrInfos(); ++i) pBuffer->AddObject(values_[i], descs_->Stored(i).VarType());
  }
  void Read(const Ref<Buffer>& pBuffer, const Text&) {
    descs_->LoadFromBuffer(pBuffer, true);
    values_.ReDim(std::max(NrInfos(), 1));
    for (Long i = 1; i <= NrInfos(); ++i) values_[i] = pBuffer->NextObject(descs_->Stored(i).VarType());
  }

  static Members Rows() {
    using I = TypedInfo;
    return Through<I, EntryDescs>([](I& pInfo) -> EntryDescs& { return *pInfo.descs_; }, u"Desc DescRef Index") +
           Shown<&I::NrInfos, &I::Value, &I::DescsRef>() + Lets<&I::LetNrInfos, &I::LetValue, &I::LetValue>() +
           Calls<&I::Clear, &I::AddInfo, &I::AddInfo, &I::DeleteInfo, &I::DeleteInfo, &I::GetValue, &I::SetValue,
                 &I::GetString, &I::SetupFrom, &I::UpdateFrom>() +
           Family();
  }

 private:
  Ref<EntryDescs> descs_ = New<EntryDescs>();
  Slots<Variant> values_;
};

}  // namespace qzbase::models
