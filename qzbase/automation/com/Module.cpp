#include "qzbase/automation/com/Module.h"

#include <atomic>

#include "qzbase/automation/com/ErrorBorder.h"

namespace qzbase::automation::com {
namespace {

HINSTANCE module = nullptr;
std::atomic<long> locks = 0;
std::atomic<ITypeLib*> library = nullptr;
bool isEnding = false;

}  // namespace

void SetModule(HINSTANCE pModule) noexcept {
  module = pModule;
}

void EndModule() noexcept {
  isEnding = true;
  if (ITypeLib* last = library.exchange(nullptr)) last->Release();
}

bool IsModuleEnding() noexcept {
  return isEnding;
}

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) RaiseResult(HRESULT_FROM_WIN32(GetLastError()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(2 * path.size());
  }
}

ComRef<ITypeLib> TypeLibrary() {
  ITypeLib* known = library.load();
  if (!known) {
    ComRef<ITypeLib> loaded;
    CheckResult(LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, loaded.Put()));
    // Two threads may get here at once; one of the two references goes.
    if (library.compare_exchange_strong(known, loaded.Get())) known = loaded.Release();
  }
  return ComRef<ITypeLib>::Share(known);
}

ComRef<ITypeInfo> TypeInfoOf(REFGUID pId) {
  ComRef<ITypeInfo> info;
  CheckResult(TypeLibrary()->GetTypeInfoOfGuid(pId, info.Put()));
  return info;
}

void LockModule() noexcept {
  ++locks;
}

void UnlockModule() noexcept {
  --locks;
}

bool IsModuleInUse() noexcept {
  return locks != 0;
}

}  // namespace qzbase::automation::com
