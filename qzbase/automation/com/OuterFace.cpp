#include "qzbase/automation/com/OuterFace.h"

#include <utility>

#include "qzbase/automation/com/DispatchSlots.h"
#include "qzbase/automation/com/ErrorBorder.h"
#include "qzbase/automation/com/HostObject.h"
#include "qzbase/automation/com/ObjectBorder.h"

namespace qzbase::automation::com {

using runtime::Raise;
using runtime::Ref;
using runtime::RuntimeError;

OuterFace::OuterFace(const ServerClass& pClass, Ref<runtime::Object> pObject)
    : class_(pClass), object_(std::move(pObject)) {
  slots = pClass.slots;
  object_->outerFace = this;
}

OuterFace::~OuterFace() {
  object_->outerFace = nullptr;
}

OuterFace* OuterFace::Of(const ServerClass& pClass, const Ref<runtime::Object>& pObject) {
  if (auto* known = static_cast<OuterFace*>(pObject->outerFace)) {
    known->AddRef();
    return known;
  }
  return new OuterFace(pClass, pObject);
}

OuterFace* OuterFace::Behind(IUnknown* pInterface) noexcept {
  auto* dual = reinterpret_cast<DualInterface*>(pInterface);
  const auto* first = static_cast<const DispatchSlots*>(dual->slots);
  return first->queryInterface == kDispatchSlots.queryInterface ? static_cast<OuterFace*>(dual) : nullptr;
}

HRESULT OuterFace::QueryInterface(REFIID pId, void** pResult) {
  if (!pResult) return E_POINTER;
  *pResult = nullptr;
  if (pId == IID_IUnknown || pId == IID_IDispatch || pId == class_.interfaceId)
    *pResult = static_cast<DualInterface*>(this);
  else if (pId == IID_ISupportErrorInfo)
    *pResult = static_cast<ISupportErrorInfo*>(this);
  else if (pId == IID_IProvideClassInfo)
    *pResult = static_cast<IProvideClassInfo*>(this);
  else
    return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

HRESULT OuterFace::InterfaceSupportsErrorInfo(REFIID pId) {
  return pId == class_.interfaceId ? S_OK : S_FALSE;
}

HRESULT OuterFace::GetClassInfo(ITypeInfo** pResult) {
  if (!pResult) return E_POINTER;
  *pResult = nullptr;
  return Guard(&class_, [&] {
    *pResult = TypeInfoOf(class_.classId).Release();
    return S_OK;
  });
}

Ref<runtime::Object> FromDispatch(IUnknown* pInterface) {
  if (!pInterface) return nullptr;
  if (const OuterFace* own = OuterFace::Behind(pInterface)) return own->Object();
  ComRef<IDispatch> dispatch = ComRef<IUnknown>::Share(pInterface).As<IDispatch>(IID_IDispatch);
  if (!dispatch) Raise(RuntimeError::TypeMismatch);
  if (const OuterFace* own = OuterFace::Behind(dispatch.Get())) return own->Object();
  return runtime::New<HostObject>(std::move(dispatch));
}

IDispatch* ToDispatch(const Ref<runtime::Object>& pObject) {
  if (!pObject) return nullptr;
  if (auto* known = static_cast<OuterFace*>(pObject->outerFace)) {
    known->AddRef();
    return known->AsDispatch();
  }
  if (const auto* host = dynamic_cast<const HostObject*>(pObject.get()))
    return ComRef<IDispatch>::Share(host->Dispatch()).Release();
  const ServerClass* served = FindServerClass(*pObject);
  if (!served) Raise(RuntimeError::TypeMismatch);
  return OuterFace::Of(*served, pObject)->AsDispatch();
}

}  // namespace qzbase::automation::com
