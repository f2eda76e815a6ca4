// The DLL itself: where it lies, what keeps it loaded, and the type library inside it.
#pragma once

#include <string>

#include "qzbase/automation/com/Handles.h"

namespace qzbase::automation::com {

// Called once, when the DLL is loaded.
void SetModule(HINSTANCE pModule) noexcept;

// Called when the DLL is unloaded while the process goes on: lets go of the type library.
void EndModule() noexcept;
bool IsModuleEnding() noexcept;

std::wstring ModulePath();

// Shared by all threads. Raises an error where there is none.
ComRef<ITypeLib> TypeLibrary();
ComRef<ITypeInfo> TypeInfoOf(REFGUID pId);

// Objects that hosts hold, and locks of class factories: the DLL must stay while there is one.
void LockModule() noexcept;
void UnlockModule() noexcept;
bool IsModuleInUse() noexcept;

class ModuleLock {
 public:
  ModuleLock() noexcept { LockModule(); }
  ~ModuleLock() { UnlockModule(); }
  ModuleLock(const ModuleLock&) = delete;
  ModuleLock& operator=(const ModuleLock&) = delete;
};

}  // namespace qzbase::automation::com
