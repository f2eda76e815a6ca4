// How errors cross the border, both ways.
//
//   number 1 to 65535         0x800A0000 | number, with source, description and interface
//   another number            itself with the failure bit
//   std::bad_alloc            number 7
//   any other exception       number 51
//   a null pointer            E_POINTER
//
// Faults of a late-bound call itself (438, 448, 449 and 450 before the member is reached) are the platform's own
// results, which every host knows. An error of the runtime, which has no source, gets "QZBase.Class"; any other keeps
// its own, even an empty one.
#pragma once

#include <cstdint>
#include <new>

#include "qzbase/automation/com/Handles.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase::automation::com {

struct ServerClass;

// Thrown for a pointer that a caller must not leave out.
struct NullPointer {};

// For the exception that is being handled. `pClass` is the class called, null where there is none.
HRESULT ReportEarly(const ServerClass* pClass) noexcept;                   // sets the thread's error object
HRESULT ReportLate(const ServerClass* pClass, EXCEPINFO* pInfo) noexcept;  // fills in `pInfo`, which may be null
HRESULT ReportCallFault() noexcept;                                        // of a call that reaches no member
HRESULT NullPointerResult() noexcept;                                      // E_POINTER, and no error object

// Calls `pBody` and makes a result of whatever it throws. Without memory there is no object to have errors of its own.
template <class Body>
HRESULT Guard(const ServerClass* pClass, Body pBody) noexcept {
  try {
    return pBody();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return ReportEarly(pClass);
  }
}

// ---- Errors of others.

// 438 for DISP_E_UNKNOWNNAME, 13 for DISP_E_TYPEMISMATCH and so on; a result unknown here is its own number.
std::int32_t NumberOfResult(HRESULT pResult) noexcept;

[[noreturn]] void RaiseResult(HRESULT pResult);
[[noreturn]] void RaiseException(EXCEPINFO& pInfo);  // what a late-bound call answered; frees its texts

inline void CheckResult(HRESULT pResult) {
  if (FAILED(pResult)) RaiseResult(pResult);
}

}  // namespace qzbase::automation::com
