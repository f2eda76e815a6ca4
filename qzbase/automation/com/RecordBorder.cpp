#include "qzbase/automation/com/RecordBorder.h"

#include "qzbase/automation/com/ErrorBorder.h"
#include "qzbase/automation/com/Module.h"

namespace qzbase::automation::com {

using runtime::Raise;
using runtime::RuntimeError;

ComRef<IRecordInfo> RecordInfoOf(const ServerRecord& pClass) {
  ComRef<IRecordInfo> info;
  CheckResult(GetRecordInfoFromTypeInfo(TypeInfoOf(pClass.id).Get(), info.Put()));
  return info;
}

const ServerRecord& CheckedServerRecord(IRecordInfo* pInfo) {
  GUID id{};
  if (!pInfo || FAILED(pInfo->GetGuid(&id))) Raise(RuntimeError::TypeMismatch);
  const ServerRecord* served = FindServerRecord(id);
  if (!served) Raise(RuntimeError::TypeMismatch);
  return *served;
}

VARIANT RecordToVariant(const Record& pRecord) {
  const ServerRecord* served = FindServerRecord(pRecord);
  if (!served) Raise(RuntimeError::TypeMismatch);
  ComRef<IRecordInfo> info = RecordInfoOf(*served);
  OwnedVariant result;
  result.value.pvRecord = info->RecordCreate();
  if (!result.value.pvRecord) Raise(RuntimeError::OutOfMemory);
  result.value.pRecInfo = info.Release();
  result.value.vt = VT_RECORD;
  served->store(pRecord, result.value.pvRecord);
  return result.Release();
}

runtime::Ref<Record> RecordFromVariant(const VARIANT& pVariant) {
  const ServerRecord& served = CheckedServerRecord(pVariant.pRecInfo);
  if (!pVariant.pvRecord) Raise(RuntimeError::ObjectNotSet);
  return served.load(pVariant.pvRecord);
}

void CheckRecordArray(SAFEARRAY& pArray, const ServerRecord& pClass) {
  ComRef<IRecordInfo> info;
  CheckResult(SafeArrayGetRecordInfo(&pArray, info.Put()));
  if (CheckedServerRecord(info.Get()).desc != pClass.desc) Raise(RuntimeError::TypeMismatch);
}

}  // namespace qzbase::automation::com
