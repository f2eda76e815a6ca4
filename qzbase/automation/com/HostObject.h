// An object of a host: a script's class instance or any other automation object. Its members are called by name.
#pragma once

#include <span>
#include <string_view>

#include "qzbase/automation/com/Handles.h"
#include "qzbase/runtime/Object.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::automation::com {

class HostObject final : public runtime::Object {
 public:
  explicit HostObject(ComRef<IDispatch> pDispatch) : dispatch_(std::move(pDispatch)) {}
  ~HostObject() override;

  // An empty name is that of the default member. Error 438 where the object has no such member, and what it answers.
  runtime::Variant Invoke(std::u16string_view pName, runtime::CallKind pKind,
                          std::span<runtime::Variant> pArguments) override;

  // The elements of a script's array, which is an object with a `length` and numbers as names.
  runtime::Array<runtime::Variant> Elements();

  IDispatch* Dispatch() const noexcept { return dispatch_.Get(); }

 private:
  DISPID FindMember(std::u16string_view pName) const;

  ComRef<IDispatch> dispatch_;
};

}  // namespace qzbase::automation::com
