// The models of TVarDesc, TCtrlDesc, TEntryDesc, CVarDescs, CEntryDescs and CTypedInfo.
#pragma once

#include "tests/models/VectorModels.h"

namespace qzbase::models {

// A field of a descriptor: in records and texts they stand in this order.
struct Field {
  std::u16string_view name;
  Variant initial;
  Pair (*draw)(World&);
  Text label;  // in the text, where it is not the name
};
template <class T>
Field FieldOf(std::u16string_view pName, T pInitial, Text pLabel = {}) {
  return {pName, pInitial, &Argument<T>::Draw, pLabel.empty() ? Text(pName) : pLabel};
}

template <class Self>
class FieldsOf : public ModelOf<Self> {
 public:
  static inline const std::vector<Field> kFields = Self::Fields();
  std::vector<Variant> values;  // one for each field

  FieldsOf() {
    for (const Field& each : kFields) values.push_back(each.initial);
  }
  Variant& operator[](std::size_t pField) { return values[pField]; }
  Text TextOf(std::size_t pField) { return runtime::ToText(values[pField]); }
  Text ID() { return TextOf(0); }
  Text GetString() {
    Text text;
    for (std::size_t i = 0; i < kFields.size(); ++i) text += kFields[i].label + u":" + TextOf(i) + u"|";
    return text;
  }
  bool Same(std::size_t pField, const Text& pOther) { return runtime::EqualText(TextOf(pField), pOther); }
  // A get and a let for each field; those of a part are also those of the whole that has it.
  static Members FieldRows(Self& (*pPart)(Model&)) {
    Members rows;
    for (std::size_t i = 0; i < kFields.size(); ++i) {
      rows.push_back({CallKind::Get,
                      kFields[i].name,
                      {},
                      0,
                      [=](Model& pModel, std::span<Variant>) { return pPart(pModel).Read(i); },
                      true});
      rows.push_back({CallKind::Let,
                      kFields[i].name,
                      {kFields[i].draw},
                      1,
                      [=](Model& pModel, std::span<Variant> pArguments) -> Variant {
                        pPart(pModel)[i] = pArguments[0];
                        return {};
                      }});
    }
    return rows;
  }
  static Self& Cast(Model& pModel) { return static_cast<Self&>(pModel); }
  static Long Version(const Text& pTag) {  // those drawn have one digit
    const std::size_t at = pTag.find(u'#');
    return at == Text::npos || at + 1 >= pTag.size() ? 0 : Long{pTag[at + 1]} - u'0';
  }
};

class VarDesc final : public FieldsOf<VarDesc> {
 public:
  static constexpr std::u16string_view kName = u"TVarDesc";
  enum : std::size_t { kDisplayed = 1, kType = 3, kFormat = 4, kNrDims = 7, kUserDefined = 9 };
  static std::vector<Field> Fields() {
    return {FieldOf<Text>(u"ID", u""),
            FieldOf<Text>(u"Name", u""),
            FieldOf<Text>(u"Unit", u""),
            FieldOf<QZVarType>(u"VarType", EVTString, u"Type"),
            FieldOf<Text>(u"OutFormat", u"", u"Format"),
            FieldOf<bool>(u"IsFormula", false),
            FieldOf<Text>(u"Description", u""),
            FieldOf<Long>(u"NrDims", 0),
            FieldOf<Text>(u"Tag", u""),
            FieldOf<bool>(u"UserDefined", false)};
  }
  QZVarType VarType() { return static_cast<QZVarType>(*values[kType].If<Long>()); }
  bool IsUserDefined() { return *values[kUserDefined].If<bool>(); }
  Text Name() { return Same(kDisplayed, u"") ? ID() : TextOf(kDisplayed); }
  Variant Read(std::size_t pField) { return pField == kDisplayed ? Variant(Name()) : values[pField]; }

  void CopyFrom(VarDesc& pSource) {
    const Text name = pSource.Name();
    values = pSource.values;
    values[kDisplayed] = name;
  }
  bool IsEqual(VarDesc& pCompare) {
    for (std::size_t i = 0; i < values.size(); ++i)
      if ((i != kDisplayed || IsUserDefined()) && !Same(i, runtime::ToText(pCompare.Read(i)))) return false;
    return true;
  }
  static constexpr auto kTag = u"VD#2";
  void Write(Buffer& pBuffer) {
    if (!IsUserDefined()) values[kDisplayed] = u"";
    for (std::size_t i = 0; i < values.size(); ++i)
      if (i == kNrDims)
        pBuffer.AddByte(runtime::CheckedNarrow<Byte>(*values[i].If<Long>()));
      else
        pBuffer.AddObject(values[i], {});
  }
  void Read(Buffer& pBuffer, const Text& pTag) {
    for (std::size_t i = 0; i < values.size(); ++i)
      if (i == kNrDims)
        values[i] = Long{pBuffer.NextByte()};
      else if (i != kUserDefined || Version(pTag) > 1)
        values[i] = pBuffer.NextOf(VarTypeOf(values[i]));
  }
  static Members Rows() {
    Members fields = FieldRows(&Cast);
    fields.resize(2 * kUserDefined);  // which is a secret
    return AllOf(fields, Shown(Does(u"GetString", &VarDesc::GetString)), Family());
  }
};

class CtrlDesc final : public FieldsOf<CtrlDesc> {
 public:
  static constexpr std::u16string_view kName = u"TCtrlDesc";
  enum : std::size_t { kSaveMask = 2, kRange = 3, kInterval = 4 };
  bool userDefined = false;
  static std::vector<Field> Fields() {
    return {FieldOf<Text>(u"ID", u""),       FieldOf<Long>(u"CtrlType", 1, u"Type"), FieldOf<bool>(u"SaveMask", true),
            FieldOf<Text>(u"Range", u""),    FieldOf<Text>(u"Interval", u""),        FieldOf<Long>(u"Width", 1000),
            FieldOf<bool>(u"Visible", true), FieldOf<bool>(u"Removable", false),     FieldOf<bool>(u"Locked", false)};
  }
  Variant Read(std::size_t pField) { return values[pField]; }
  bool UserDefined() { return userDefined; }
  void LetUserDefined(bool pUserDefined) { userDefined = pUserDefined; }

  void CopyFrom(CtrlDesc& pSource) { values = pSource.values; }
  bool IsEqual(CtrlDesc& pCompare) {
    for (std::size_t i = 0; i < values.size(); ++i)
      if (Counts(i) && !Same(i, pCompare.TextOf(i))) return false;
    return true;
  }
  static constexpr auto kTag = u"CD#2";
  void Write(Buffer& pBuffer) {
    for (std::size_t i = 0; i < values.size(); ++i)
      if (Counts(i)) pBuffer.AddObject(values[i], {});
  }
  void Read(Buffer& pBuffer, const Text& pTag) {
    for (std::size_t i = 0; i < values.size(); ++i)
      if (Counts(i)) values[i] = pBuffer.NextOf(VarTypeOf(values[i]));
    userDefined = Version(pTag) < 2 && pBuffer.NextBoolean();
  }
  static Members Rows() {
    using D = CtrlDesc;
    return AllOf(FieldRows(&Cast), Both(u"UserDefined", &D::UserDefined, &D::LetUserDefined),
                 Does(u"GetString", &D::GetString), Family());
  }

 private:
  bool Counts(std::size_t pField) { return *values[kSaveMask].If<bool>() || (pField != kRange && pField != kInterval); }
};

class EntryDesc final : public ModelOf<EntryDesc> {
 public:
  static constexpr std::u16string_view kName = u"TEntryDesc";

  VarDesc& Var() { return The(var_); }
  CtrlDesc& Ctrl() { return The(ctrl_); }
  Text ID() { return Var().ID(); }
  void LetID(Text pID) {
    Var()[0] = pID;
    Ctrl()[0] = pID;
  }
  QZVarType VarType() { return Var().VarType(); }
  Ref<VarDesc> GetVarDesc() { return var_; }
  void SetVarDesc(Ref<VarDesc> pVarDesc) { var_ = pVarDesc; }
  Ref<CtrlDesc> GetCtrlDesc() { return ctrl_; }
  void SetCtrlDesc(Ref<CtrlDesc> pCtrlDesc) { ctrl_ = pCtrlDesc; }
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
  void Write(Buffer& pBuffer) {
    Var().SaveToBuffer(&pBuffer, true);
    Ctrl().SaveToBuffer(&pBuffer, true);
  }
  void Read(Buffer& pBuffer) {
    Var().LoadFromBuffer(&pBuffer, true);
    Ctrl().LoadFromBuffer(&pBuffer, true);
    if (!ctrl_->userDefined) return;
    Var()[VarDesc::kUserDefined] = true;
    Var()[VarDesc::kDisplayed] = u"";
  }
  static Members Rows() {
    using D = EntryDesc;
    Members fields =
        AllOf(CtrlDesc::FieldRows([](Model& pModel) -> CtrlDesc& { return static_cast<D&>(pModel).Ctrl(); }),
              VarDesc::FieldRows([](Model& pModel) -> VarDesc& { return static_cast<D&>(pModel).Var(); }));
    std::erase_if(fields, [](const Member& pRow) { return pRow.name == u"ID"; });
    return AllOf(fields, Both(u"ID", &D::ID, &D::LetID), Shown(Gets(u"VarDesc", &D::GetVarDesc)),
                 Sets(u"VarDesc", &D::SetVarDesc), Shown(Gets(u"CtrlDesc", &D::GetCtrlDesc)),
                 Sets(u"CtrlDesc", &D::SetCtrlDesc), Does(u"GetString", &D::GetString), Family());
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
    for (Long i = 1; i <= size_; ++i)
      if (!slots_[i]) slots_[i] = New<D>();
    if (size_ < 1) slots_[1] = nullptr;
  }
  void AddDesc(D& pDesc) { InsertDesc(pDesc, {0}); }
  void MoveDesc(At pOldPos, At pNewPos) {
    if (pOldPos == pNewPos) return;
    const Ref<D> held = slots_[pOldPos];
    for (std::int64_t k = std::int64_t{pOldPos} - 1; k >= pNewPos; --k) slots_[k] = slots_[k + 1];
    for (std::int64_t k = pOldPos; k < pNewPos; ++k) slots_[k] = slots_[k + 1];
  }
  Long InsertDesc(D& pDesc, At pAtPos) { return this->Insert(pAtPos, pDesc.GetCopy()); }
  void DeleteDesc(At pIndex) {
    if (size_ < 1) return;
    slots_.Close(pIndex, size_);
    LetSize({{size_ - 1}});
  }
  Long Index(Text pID) {
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
    LetSize({{pSource.size_}});
    for (Long i = 1; i <= size_; ++i) Stored(i).CopyFrom(pSource.Stored(i));
  }
  bool IsEqual(L& pCompare) { return this->SameElements(pCompare); }
  static constexpr auto kTag = kIsVar ? u"VV#1" : u"DV#1";
  void Write(Buffer& pBuffer) { this->WriteElements(pBuffer); }
  void Read(Buffer& pBuffer) {
    LetSize({{pBuffer.NextCount(24)}});
    Each([&](D& pDesc) { pDesc.LoadFromBuffer(&pBuffer, true); });
  }

  static Members Rows() {
    return AllOf(Both(u"Size", &L::Size, &L::LetSize), Gets(u"Desc", &L::Copy), Sets(u"Desc", &L::SetStored),
                 Lets(u"Desc", &L::LetStored), Shown(Gets(u"DescRef", &L::Reference)), Gets(u"DescRef", &L::Reference),
                 Does(u"AddDesc", &L::AddDesc), Does(u"MoveDesc", &L::MoveDesc), Does(u"InsertDesc", &L::InsertDesc),
                 Does(u"DeleteDesc", &L::DeleteDesc), Does(u"Index", &L::Index), Does(u"GetString", &L::GetString),
                 L::Family());
  }
};

using VarDescs = Descs<VarDesc>;
using EntryDescs = Descs<EntryDesc>;

class TypedInfo final : public ModelOf<TypedInfo> {
 public:
  static constexpr std::u16string_view kName = u"CTypedInfo";

  void Clear() {
    descs_->LetSize({{0}});
    values_ = {};
  }
  Long NrInfos() { return descs_->Size(); }
  void LetNrInfos(Count pNrInfos) {
    descs_->LetSize(pNrInfos);
    values_.ReDim(std::max<Long>(pNrInfos, 1));
  }
  Ref<EntryDesc> Desc(At pIndex) { return descs_->Copy(pIndex); }
  void SetDesc(At pIndex, Ref<EntryDesc> pDesc) { descs_->SetStored(pIndex, pDesc); }
  void LetDesc(At pIndex, EntryDesc& pDesc) { descs_->LetStored(pIndex, pDesc); }
  Ref<EntryDesc> DescRef(At pIndex) { return descs_->Reference(pIndex); }
  void AddInfo(EntryDesc& pDesc, Variant pValue) {
    const Long n = Checked(std::int64_t{NrInfos()} + 1);
    LetNrInfos({{n}});
    LetDesc({n}, pDesc);
    values_[n] = pValue;
  }
  void DeleteInfo(At pIndex) {
    const Long n = NrInfos();
    if (n < 1) return;
    descs_->DeleteDesc(pIndex);
    values_.Close(pIndex, n);
    LetNrInfos({{n - 1}});
  }
  Variant Value(At pIndex) { return values_[pIndex]; }
  void LetValue(At pIndex, Variant pValue) { values_[pIndex] = pValue; }
  Long Index(Text pID) { return descs_->Index(pID); }
  Variant GetValue(Text pID) {
    const Long i = Index(pID);
    return i > 0 ? values_[i] : Variant(u"");
  }
  void SetValue(Text pID, Variant pValue) { values_[Index(pID)] = pValue; }
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
      if (!Of<Variant>::Same(values_[i], pCompare.values_[i])) return false;
    return true;
  }
  static constexpr auto kTag = u"TypedInfo#1";
  void Write(Buffer& pBuffer) {
    descs_->SaveToBuffer(&pBuffer, true);
    for (Long i = 1; i <= NrInfos(); ++i) pBuffer.AddObject(values_[i], descs_->Stored(i).VarType());
  }
  void Read(Buffer& pBuffer) {
    descs_->LoadFromBuffer(&pBuffer, true);
    values_.ReDim(std::max(NrInfos(), 1));
    for (Long i = 1; i <= NrInfos(); ++i) values_[i] = pBuffer.NextObject(descs_->Stored(i).VarType());
  }

  static Members Rows() {
    using I = TypedInfo;
    return AllOf(Does(u"Clear", &I::Clear), Both(u"NrInfos", &I::NrInfos, &I::LetNrInfos), Gets(u"Desc", &I::Desc),
                 Sets(u"Desc", &I::SetDesc), Lets(u"Desc", &I::LetDesc), Gets(u"DescRef", &I::DescRef),
                 Does(u"AddInfo", &I::AddInfo), Does(u"AddInfo", &I::AddInfo), Does(u"DeleteInfo", &I::DeleteInfo),
                 Both(u"Value", &I::Value, &I::LetValue), Does(u"Index", &I::Index), Does(u"GetValue", &I::GetValue),
                 Does(u"SetValue", &I::SetValue), Shown(Gets(u"DescsRef", &I::DescsRef)),
                 Does(u"GetString", &I::GetString), Does(u"SetupFrom", &I::SetupFrom),
                 Does(u"UpdateFrom", &I::UpdateFrom), Family());
  }

 private:
  Ref<EntryDescs> descs_ = New<EntryDescs>();
  Slots<Variant> values_;
};

}  // namespace qzbase::models
