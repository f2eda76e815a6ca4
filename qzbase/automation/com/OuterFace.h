// What a host holds: one for each object that it knows, made when the object is first handed out and gone when the host
// lets go of it. The object keeps its face's address meanwhile, so that it always has the same one.
#pragma once

#include <atomic>

#include "qzbase/automation/com/Faces.h"
#include "qzbase/automation/com/Module.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::automation::com {

// The dual interface of a class, as hosts see it: a pointer to its slots (Slots.h).
struct DualInterface {
  const void* slots = nullptr;
};

class OuterFace final : public DualInterface, public ISupportErrorInfo, public IProvideClassInfo {
 public:
  // The face of an object, its own or a fresh one; counts a reference for the caller.
  static OuterFace* Of(const Face& pFace, const runtime::Ref<runtime::Object>& pObject);

  // The face whose dual interface this is, null for an object from elsewhere.
  static OuterFace* Behind(IUnknown* pInterface) noexcept;

  IDispatch* AsDispatch() noexcept { return reinterpret_cast<IDispatch*>(static_cast<DualInterface*>(this)); }

  const Face& Class() const noexcept { return face_; }
  const runtime::Ref<runtime::Object>& Object() const noexcept { return object_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID pId, void** pResult) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID pId) override;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** pResult) override;

 private:
  OuterFace(const Face& pFace, runtime::Ref<runtime::Object> pObject);
  ~OuterFace();

  const Face& face_;
  const runtime::Ref<runtime::Object> object_;
  std::atomic<ULONG> references_ = 1;
  const ModuleLock lock_;
};

}  // namespace qzbase::automation::com
