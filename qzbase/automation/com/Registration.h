// What tells the system that this DLL serves the classes of the library.
//
//   Software\Classes\QZBase.CBuffer\CLSID              the class
//   Software\Classes\CLSID\{...}\InprocServer32        the DLL, for apartments of one thread
//                               \ProgID, \VersionIndependentProgID, \TypeLib, \Version, \Programmable
//
// and the type library. Registering the DLL again from elsewhere moves everything there; a registration that fails
// halfway leaves what was there before.
#pragma once

#include "qzbase/automation/com/Platform.h"

namespace qzbase::automation::com {

enum class Audience { Machine, User };  // needs the rights of an administrator, or none

// Thrown with the system's own result, which tools for registration show.
struct RegistrationFault {
  HRESULT result;
};

void Register(Audience pAudience);
void Unregister(Audience pAudience);

}  // namespace qzbase::automation::com
