#include "qzbase/core/GCError.h"

#include "qzbase/core/ModError.h"

namespace qzbase {

std::int32_t GCError::NrRegisteredErrors() {
  return ModError::Registry().Count();
}

TErrIndex GCError::RegisterError(std::u16string_view pModule, std::u16string_view pID, std::u16string_view pMsg,
                                 bool pAddInfo) {
  return ModError::RegisterError(pModule, pID, pMsg, pAddInfo);
}

std::int32_t GCError::ErrCode(const TErrIndex& pIdx) {
  return pIdx.Value == 0 ? 0 : ModError::ErrCodeOf(pIdx);
}

std::u16string GCError::ErrID(const TErrIndex& pIdx) {
  return ModError::Registry().Entry(pIdx.Value).ID;
}

std::u16string GCError::ErrModule(const TErrIndex& pIdx) {
  return ModError::Registry().Entry(pIdx.Value).Module;
}

void GCError::SetAddErrInfo(std::u16string_view pInfo) {
  ModError::SetAddErrInfo(pInfo);
}

std::u16string GCError::ErrorMessage(std::int32_t pErrCode) {
  return ModError::ErrorMessage(pErrCode);
}

void GCError::IgnoreErr(std::int32_t) {}

void GCError::Throw(std::int32_t pErrCode, std::u16string_view pAddInfo) {
  ModError::RaiseErr(pErrCode, pAddInfo);
}

void GCError::SetServerId(std::u16string_view pID) {
  ModError::SetServerId(pID);
}

std::int32_t GCError::ErrIndex(std::u16string_view pModule, std::u16string_view pID) {
  return ModError::FindErrIndex(pModule, pID);
}

runtime::Array<TErrDesc> GCError::GetErrors() {
  return ModError::Registry().Entries();
}

void GCError::SetErrors(const runtime::Array<TErrDesc>& pErrors) {
  ModError::Registry().SetEntries(pErrors);
}

TErrDesc GCError::EDesc(std::int32_t pIdx) {
  return ModError::Registry().Entry(pIdx);
}

runtime::Variant GCError::SetEDesc(std::int32_t pIdx, const TErrDesc& pDesc) {
  ModError::Registry().Entry(pIdx) = pDesc;
  return {};
}

void GCError::UpdateErrMessage(std::int32_t pIdx, std::u16string_view pMsg) {
  ModError::Registry().Entry(pIdx).Msg = pMsg;
}

void GCError::SynchErrors(runtime::Object& pClient) {
  ModError::SynchErrors(pClient);
}

}  // namespace qzbase
