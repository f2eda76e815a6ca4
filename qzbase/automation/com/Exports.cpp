// What the system calls in the DLL.
#include <cwchar>

#include "qzbase/automation/com/ClassFactory.h"
#include "qzbase/automation/com/ErrorBorder.h"
#include "qzbase/automation/com/Registration.h"

// Declared in no header of the compiler's: gives back the 73 kB that it keeps for exceptions when there is no memory.
namespace __gnu_cxx {
void __freeres();
}

namespace qzbase::automation::com {
namespace {

HRESULT Run(void (*pStep)(Audience), Audience pAudience) noexcept {
  return Guard(nullptr, [&] {
    try {
      pStep(pAudience);
      return S_OK;
    } catch (const RegistrationFault& fault) {
      return fault.result;
    }
  });
}

}  // namespace
}  // namespace qzbase::automation::com

namespace com = qzbase::automation::com;

extern "C" {

BOOL WINAPI DllMain(HINSTANCE pModule, DWORD pReason, LPVOID pProcessEnds) {
  if (pReason == DLL_PROCESS_ATTACH) com::SetModule(pModule);
  if (pReason == DLL_PROCESS_DETACH && !pProcessEnds) {
    com::EndModule();
    __gnu_cxx::__freeres();
  }
  return TRUE;
}

HRESULT WINAPI DllGetClassObject(REFCLSID pClassId, REFIID pId, void** pResult) {
  if (!pResult) return E_POINTER;
  *pResult = nullptr;
  const com::ServerClass* served = com::FindServerClass(pClassId);
  if (!served) return CLASS_E_CLASSNOTAVAILABLE;
  return com::Guard(served, [&] {
    const com::ComRef<IClassFactory> factory(new com::ClassFactory(*served));
    return factory->QueryInterface(pId, pResult);
  });
}

HRESULT WINAPI DllCanUnloadNow() {
  return com::IsModuleInUse() ? S_FALSE : S_OK;
}

HRESULT WINAPI DllRegisterServer() {
  return com::Run(com::Register, com::Audience::Machine);
}

HRESULT WINAPI DllUnregisterServer() {
  return com::Run(com::Unregister, com::Audience::Machine);
}

// `regsvr32 /n /i:user`
HRESULT WINAPI DllInstall(BOOL pInstall, LPCWSTR pCommand) {
  const bool forUser = pCommand && _wcsicmp(pCommand, L"user") == 0;
  return com::Run(pInstall ? com::Register : com::Unregister, forUser ? com::Audience::User : com::Audience::Machine);
}

}  // extern "C"
