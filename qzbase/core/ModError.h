// Raising registered errors, and the texts to show for them.
//
// Every failure that the library reports on purpose is an entry of the thread's error registry, and is raised like
// this:
//
//   ModError::RaiseBuiltIn(BuiltInError::InvRange, u"150 [0;100]");
//
// The error that arrives carries the entry's number, the server identifier as source and the additional information as
// description; its receiver makes the text for the user:
//
//   ModError::ErrorMessage(error.Number())                          "Number out of range (150 [0;100])"
//
// Registry, additional information and server identifier exist once per thread, made at the thread's first use with the
// built-in errors registered in their order.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/core/BuiltInErrors.h"
#include "qzbase/core/ErrorRecords.h"
#include "qzbase/core/ErrorRegistry.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::ModError {

// As additional information: the text set before stays.
inline constexpr std::u16string_view kKeepAddInfo = u"*";

// The calling thread's registry.
ErrorRegistry& Registry();

// Registers an error (ErrorRegistry::Register). Raises nothing: a failure is shown in a message box and returns -1.
TErrIndex RegisterError(std::u16string_view pModule, std::u16string_view pID, std::u16string_view pMsg,
                        bool pAddInfo = false);

// The position of the first entry of that module (empty: any) and identifier, 0 if there is none.
std::int32_t FindErrIndex(std::u16string_view pModule, std::u16string_view pID);

// The number of an entry. Raises error 9 where there is none, so for index 0 too.
std::int32_t ErrCodeOf(TErrIndex pIdx);

// Where a built-in error was registered.
TErrIndex IndexOf(BuiltInError pError);

// The number of a built-in error for members that return it instead of raising it, where 0 means success. Raises
// nothing: where a host has taken the entry away or given it the number 0, it is the number of its registration.
std::int32_t StatusOf(BuiltInError pError);

// Raises the error; 0 does nothing. The additional information is kept for `ErrorMessage` until another is set.
void RaiseErr(std::int32_t pErrCode, std::u16string_view pAddInfo = kKeepAddInfo);

// Raises a built-in error under the number that it has now. Returns only where a host has given its entry the number 0.
void RaiseBuiltIn(BuiltInError pError, std::u16string_view pAddInfo = kKeepAddInfo);

void SetAddErrInfo(std::u16string_view pInfo);
void SetServerId(std::u16string_view pID);

// The text to show for an error number. Raises nothing.
//
//   below 1000          the runtime's standard text
//   not registered      "unknown error:5000"
//   registered          the localised message of "Module.ID"; where the thread's last error has a source, behind it and
//                       ": "
//   with AddInfo        the localised message of "ID", then the additional information: "Number out of range (150)"
std::u16string ErrorMessage(std::int32_t pErrCode);

// Gives every error that both sides know the number that it has in `pClient`, the error object of another process,
// which first registers what it lacks. The client is called by name: ErrIndex, RegisterError, NrRegisteredErrors,
// EDesc.
void SynchErrors(runtime::Object& pClient);

}  // namespace qzbase::ModError
