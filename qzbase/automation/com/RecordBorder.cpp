#include "qzbase/automation/com/RecordBorder.h"

#include "qzbase/automation/com/ErrorBorder.h"
#include "qzbase/automation/com/Module.h"

namespace qzbase::automation::com {

using runtime::Raise;
using runtime::RuntimeError;

ComRef<IRecordInfo> RecordInfoOf(const RecordFace& pFace) {
  ComRef<IRecordInfo> info;
  CheckResult(GetRecordInfoFromTypeInfo(TypeInfoOf(pFace.id).Get(), info.Put()));
  return info;
}

const RecordFace& CheckedRecordFace(IRecordInfo* pInfo) {
  GUID id{};
  if (!pInfo || FAILED(pInfo->GetGuid(&id))) Raise(RuntimeError::TypeMismatch);
  const RecordFace* face = FindRecordFace(id);
  if (!face) Raise(RuntimeError::TypeMismatch);
  return *face;
}

VARIANT RecordToVariant(const Record& pRecord) {
  const RecordFace* face = FindRecordFace(pRecord);
  if (!face) Raise(RuntimeError::TypeMismatch);
  ComRef<IRecordInfo> info = RecordInfoOf(*face);
  OwnedVariant result;
  result.value.pvRecord = info->RecordCreate();
  if (!result.value.pvRecord) Raise(RuntimeError::OutOfMemory);
  result.value.pRecInfo = info.Release();
  result.value.vt = VT_RECORD;
  face->store(pRecord, result.value.pvRecord);
  return result.Release();
}

runtime::Ref<Record> RecordFromVariant(const VARIANT& pVariant) {
  const RecordFace& face = CheckedRecordFace(pVariant.pRecInfo);
  if (!pVariant.pvRecord) Raise(RuntimeError::ObjectNotSet);
  return face.load(pVariant.pvRecord);
}

void CheckRecordArray(SAFEARRAY& pArray, const RecordFace& pFace) {
  ComRef<IRecordInfo> info;
  CheckResult(SafeArrayGetRecordInfo(&pArray, info.Put()));
  if (CheckedRecordFace(info.Get()).desc != pFace.desc) Raise(RuntimeError::TypeMismatch);
}

}  // namespace qzbase::automation::com
