// An object of a host: a script's class instance or any other automation object. Its members are called by name, those
// of the platform's own interfaces by number.
#pragma once

#include <span>
#include <string_view>

#include "qzbase/automation/com/Handles.h"
#include "qzbase/automation/com/Module.h"
#include "qzbase/runtime/Object.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::automation::com {

class HostObject final : public runtime::Object {
 public:
  explicit HostObject(ComRef<IDispatch> pDispatch);
  ~HostObject() override;

  // An empty name is that of the default member. Error 438 where the object has no such member, and what it answers.
  runtime::Variant Invoke(std::u16string_view pName, runtime::CallKind pKind,
                          std::span<runtime::Variant> pArguments) override;

  // By the number alone.
  runtime::Variant InvokeNumbered(const runtime::NumberedMember& pMember, runtime::CallKind pKind,
                                  std::span<runtime::Variant> pArguments) override;

  // The elements of a script's array, which is an object with a `length` and numbers as names.
  runtime::Array<runtime::Variant> Elements();

  IDispatch* Dispatch() const noexcept { return dispatch_.Get(); }

 private:
  DISPID FindMember(std::u16string_view pName) const;
  runtime::Variant InvokeId(DISPID pMember, runtime::CallKind pKind, std::span<runtime::Variant> pArguments);

  ComRef<IDispatch> dispatch_;
  const DWORD thread_;
  const ModuleLock lock_;  // the host's last call may come when the library has no object left but this one
};

}  // namespace qzbase::automation::com
