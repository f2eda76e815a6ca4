#include "qzbase/layout/CLayoutTable.h"

#include <utility>

#include "qzbase/persist/Record.h"
#include "qzbase/runtime/NumberText.h"

namespace qzbase {

struct CLayoutTable::Lists {
  static constexpr auto kPlain = Fields(&CLayoutTable::border_, &CLayoutTable::captionColour_);
};

std::int32_t CLayoutTable::SetColDescs(const CEntryDescs& pDesc) {
  colDescs_->CopyFrom(pDesc);
  return 0;
}

runtime::Variant CLayoutTable::AddGenericInfo(std::u16string_view pID, QZVarType pType, runtime::Variant pInfo) {
  genericInfos_->LetNrInfos(NrGenericInfos() + 1);
  const std::int32_t position = NrGenericInfos();
  TEntryDesc& desc = *genericInfos_->DescRef(position);
  desc.LetID(pID);
  desc.LetVarType(pType);
  genericInfos_->LetValue(position, std::move(pInfo));
  return position;
}

void CLayoutTable::LetGenericInfoValue(std::int32_t pID, runtime::Variant pValue) {
  genericInfos_->SetValue(runtime::NumberText(pID), std::move(pValue));
}

runtime::Variant CLayoutTable::GetGenericInfoValue(std::int32_t pID, const runtime::Variant& pDefault) const {
  const std::int32_t position = genericInfos_->Index(runtime::NumberText(pID));
  return position > 0 ? genericInfos_->Value(position) : pDefault;
}

void CLayoutTable::CopyFrom(const CLayoutTable& pSource) {
  CopyFields(*this, pSource, Lists::kPlain);
  colDescs_->CopyFrom(*pSource.colDescs_);
  genericInfos_->CopyFrom(*pSource.genericInfos_);
}

runtime::Ref<CLayoutTable> CLayoutTable::GetCopy() const {
  auto copy = runtime::New<CLayoutTable>();
  copy->CopyFrom(*this);
  return copy;
}

bool CLayoutTable::IsEqual(const CLayoutTable& pCompare) const {
  return EqualFields(*this, pCompare, Lists::kPlain) && colDescs_->IsEqual(*pCompare.colDescs_) &&
         genericInfos_->IsEqual(*pCompare.genericInfos_);
}

void CLayoutTable::SaveToBuffer(CBuffer* pBuffer, bool pAppend) {
  SaveRecord(pBuffer, pAppend, u"LayoutTable", [this](CBuffer& pInto) {
    SaveFields(pInto, *this, Lists::kPlain);
    colDescs_->SaveToBuffer(&pInto, true);
    genericInfos_->SaveToBuffer(&pInto, true);
  });
}

void CLayoutTable::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& pFrom) {
    LoadFields(pFrom, *this, Lists::kPlain);
    colDescs_->LoadFromBuffer(&pFrom, true);
    genericInfos_->LoadFromBuffer(&pFrom, true);
  });
}

}  // namespace qzbase
