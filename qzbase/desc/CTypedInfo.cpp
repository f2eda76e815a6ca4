#include "qzbase/desc/CTypedInfo.h"

#include <algorithm>

#include "qzbase/persist/Record.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Compare.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/Memory.h"
#include "qzbase/runtime/Positions.h"

namespace qzbase {

using runtime::Variant;

// What the first slot holds is kept also where there are no infos.
void CTypedInfo::ResizeValues() {
  runtime::WithMemory([this] { values_.Elements().resize(static_cast<std::size_t>(std::max(NrInfos(), 1))); });
}

void CTypedInfo::Clear() {
  LetNrInfos(0);
  values_[1] = {};
}

void CTypedInfo::LetNrInfos(std::int32_t pNrInfos) {
  descs_->LetSize(pNrInfos);
  ResizeValues();
}

void CTypedInfo::AddInfo(const TEntryDesc& pDesc, Variant pValue) {
  const auto count = runtime::CheckedNarrow<std::int32_t>(std::int64_t{NrInfos()} + 1);
  LetNrInfos(count);
  LetDesc(count, pDesc);
  LetValue(count, std::move(pValue));
}

void CTypedInfo::DeleteInfo(std::int32_t pIndex) {
  const std::int32_t count = NrInfos();
  if (count < 1) return;
  descs_->DeleteDesc(pIndex);
  for (std::int32_t i = pIndex; i < count; ++i) values_[i] = values_[i + 1];  // which stays where the next has no slot
  ResizeValues();
}

Variant CTypedInfo::GetValue(std::u16string_view pID) const {
  const std::int32_t index = Index(pID);
  return index > 0 ? Value(index) : Variant(u"");
}

std::u16string CTypedInfo::GetString() const {
  return runtime::WithMemory([this] {
    const runtime::LocaleRules& rules = runtime::ThreadLocale();
    std::u16string text;
    for (const std::int32_t i : runtime::Positions(1, NrInfos())) text += descs_->At(i).ID() + u';';
    text += u'\n';
    for (const std::int32_t i : runtime::Positions(1, NrInfos())) text += runtime::ToText(Value(i), rules) + u';';
    return text;
  });
}

void CTypedInfo::SetupFrom(const CEntryDescs& pDesc) {
  descs_->CopyFrom(pDesc);
  values_.Elements().clear();
  ResizeValues();
}

void CTypedInfo::UpdateFrom(const CTypedInfo& pSource) {
  for (const std::int32_t i : runtime::Positions(1, pSource.NrInfos())) {
    const std::int32_t index = Index(pSource.descs_->At(i).ID());
    if (index > 0) LetValue(index, pSource.Value(i));
  }
}

void CTypedInfo::CopyFrom(const CTypedInfo& pSource) {
  descs_->CopyFrom(*pSource.descs_);
  ResizeValues();
  for (const std::int32_t i : runtime::Positions(1, NrInfos())) LetValue(i, pSource.Value(i));
}

runtime::Ref<CTypedInfo> CTypedInfo::GetCopy() const {
  auto copy = runtime::New<CTypedInfo>();
  copy->CopyFrom(*this);
  return copy;
}

bool CTypedInfo::IsEqual(const CTypedInfo& pCompare) const {
  if (!descs_->IsEqual(*pCompare.descs_)) return false;
  for (const std::int32_t i : runtime::Positions(1, NrInfos()))
    if (!runtime::EqualExact(Value(i), pCompare.Value(i))) return false;
  return true;
}

void CTypedInfo::SaveToBuffer(CBuffer* pBuffer, bool pAppend) {
  SaveRecord(pBuffer, pAppend, u"TypedInfo#1", [this](CBuffer& buffer) {
    descs_->SaveToBuffer(&buffer, true);
    for (const std::int32_t i : runtime::Positions(1, NrInfos())) buffer.AddObject(Value(i), descs_->At(i).VarType());
  });
}

void CTypedInfo::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& buffer) {
    descs_->LoadFromBuffer(&buffer, true);
    ResizeValues();
    for (const std::int32_t i : runtime::Positions(1, NrInfos()))
      LetValue(i, buffer.NextObject(descs_->At(i).VarType()));
  });
}

}  // namespace qzbase
