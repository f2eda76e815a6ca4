// What a host holds: one for each object that it knows, made when the object is first handed out and gone when the host
// lets go of it. The object keeps its face's address meanwhile, so that it always has the same one.
#pragma once

#include "qzbase/automation/com/Module.h"
#include "qzbase/automation/com/ServerClasses.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::automation::com {

// The dual interface of a class, as hosts see it: a pointer to its slots (Slots.h).
struct DualInterface {
  const void* slots = nullptr;
};

class OuterFace final : public DualInterface, public ISupportErrorInfo, public IProvideClassInfo {
 public:
  // The face of an object, its own or a fresh one; counts a reference for the caller.
  static OuterFace* Of(const ServerClass& pClass, const runtime::Ref<runtime::Object>& pObject);

  // The face whose dual interface this is, null for an object from elsewhere.
  static OuterFace* Behind(IUnknown* pInterface) noexcept;

  IDispatch* AsDispatch() noexcept { return reinterpret_cast<IDispatch*>(static_cast<DualInterface*>(this)); }

  const ServerClass& Class() const noexcept { return class_; }
  const runtime::Ref<runtime::Object>& Object() const noexcept { return object_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID pId, void** pResult) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID pId) override;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** pResult) override;

 private:
  OuterFace(const ServerClass& pClass, runtime::Ref<runtime::Object> pObject);
  ~OuterFace();

  const ServerClass& class_;
  const runtime::Ref<runtime::Object> object_;
  ULONG references_ = 1;  // counted by the one thread of the apartment
  const ModuleLock lock_;
};

// An object is held while it is called: the call may let go of the last other reference.
class HeldFace {
 public:
  explicit HeldFace(DualInterface* pSelf) noexcept : face_(*static_cast<OuterFace*>(pSelf)) { face_.AddRef(); }
  ~HeldFace() { face_.Release(); }
  HeldFace(const HeldFace&) = delete;
  HeldFace& operator=(const HeldFace&) = delete;

  OuterFace& Get() const noexcept { return face_; }

 private:
  OuterFace& face_;
};

}  // namespace qzbase::automation::com
