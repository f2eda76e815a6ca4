// The public face of the error registry. Every member works on the calling thread's registry; an object of this class
// has no state of its own.
//
//   const TErrIndex noPaper = GCError::RegisterError(u"App", u"NoPaper", u"Out of paper");
//   GCError::Throw(GCError::ErrCode(noPaper));
//   ... catch (const runtime::AutomationError& error) { show(GCError::ErrorMessage(error.Number())); }
//
// Positions count from 1; one that is not in the registry raises error 9 (subscript out of range).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/core/ErrorRecords.h"
#include "qzbase/runtime/Array.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class GCError : public runtime::Object {
 public:
  static std::int32_t NrRegisteredErrors();

  // Returns -1, after a message box, when the registration failed. Names that are exchanged with those of a registered
  // entry give that entry's index (ErrorRegistry::Register).
  static TErrIndex RegisterError(std::u16string_view pModule, std::u16string_view pID, std::u16string_view pMsg,
                                 bool pAddInfo = false);

  // Number, identifier and module of an entry. The number of index 0 (no error) is 0.
  static std::int32_t ErrCode(const TErrIndex& pIdx);
  static std::u16string ErrID(const TErrIndex& pIdx);
  static std::u16string ErrModule(const TErrIndex& pIdx);

  // The additional information of errors that are thrown with "*".
  static void SetAddErrInfo(std::u16string_view pInfo);

  // The text to show for an error number; raises nothing.
  static std::u16string ErrorMessage(std::int32_t pErrCode);

  // Does nothing: a call marks an error as ignored on purpose.
  static void IgnoreErr(std::int32_t pErrCode);

  // Raises the error, with the server identifier as source and the additional information as description. "*" keeps
  // the information that was set before; number 0 does nothing at all.
  static void Throw(std::int32_t pErrCode, std::u16string_view pAddInfo = u"*");

  // The source of the errors thrown on this thread.
  static void SetServerId(std::u16string_view pID);

  // The position of the first entry of that module (empty: any) and identifier; 0 if there is none.
  static std::int32_t ErrIndex(std::u16string_view pModule, std::u16string_view pID);

  // The whole registry. An array set is kept with its bounds; an unallocated one raises error 9.
  static runtime::Array<TErrDesc> GetErrors();
  static void SetErrors(const runtime::Array<TErrDesc>& pErrors);

  static TErrDesc EDesc(std::int32_t pIdx);
  static runtime::Variant SetEDesc(std::int32_t pIdx, const TErrDesc& pDesc);  // always empty
  static void UpdateErrMessage(std::int32_t pIdx, std::u16string_view pMsg);

  // Gives every error that both sides know the number that it has in `pClient`, another process's object of this class,
  // which first registers what it lacks.
  static void SynchErrors(runtime::Object& pClient);
};

}  // namespace qzbase
