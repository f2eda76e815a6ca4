#include "qzbase/automation/com/ClassFactory.h"

#include "qzbase/automation/com/ErrorBorder.h"
#include "qzbase/automation/com/OuterFace.h"

namespace qzbase::automation::com {

HRESULT ClassFactory::QueryInterface(REFIID pId, void** pResult) {
  if (!pResult) return E_POINTER;
  const bool isKnown = pId == IID_IUnknown || pId == IID_IClassFactory;
  *pResult = isKnown ? this : nullptr;
  if (!isKnown) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG ClassFactory::AddRef() {
  return ++references_;
}

ULONG ClassFactory::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ClassFactory::CreateInstance(IUnknown* pOuter, REFIID pId, void** pResult) {
  if (!pResult) return E_POINTER;
  *pResult = nullptr;
  if (pOuter) return CLASS_E_NOAGGREGATION;
  return Guard(&class_, [&] {
    const ComRef<IDispatch> fresh(OuterFace::Of(class_, class_.entry->create())->AsDispatch());
    return fresh->QueryInterface(pId, pResult);
  });
}

HRESULT ClassFactory::LockServer(BOOL pLock) {
  if (pLock)
    LockModule();
  else
    UnlockModule();
  return S_OK;
}

}  // namespace qzbase::automation::com
