// Creates the objects of one class for hosts.
#pragma once

#include <atomic>

#include "qzbase/automation/com/Module.h"
#include "qzbase/automation/com/ServerClasses.h"

namespace qzbase::automation::com {

class ClassFactory final : public IClassFactory {
 public:
  explicit ClassFactory(const ServerClass& pClass) noexcept : class_(pClass) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID pId, void** pResult) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // Objects cannot be made part of others.
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* pOuter, REFIID pId, void** pResult) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL pLock) override;

 private:
  ~ClassFactory() = default;

  const ServerClass& class_;
  std::atomic<ULONG> references_ = 1;
  const ModuleLock lock_;
};

}  // namespace qzbase::automation::com
