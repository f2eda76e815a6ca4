// Objects at the border: this library's own keep their identity, others become host objects.
#pragma once

#include "qzbase/automation/com/Platform.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::automation::com {

// The object behind an interface of any kind; null gives an unset one. Error 13 for an object that cannot be called by
// name.
runtime::Ref<runtime::Object> FromDispatch(IUnknown* pInterface);

// The same interface each time while a host holds it; counts a reference for the caller. Error 13 for an object of a
// class that hosts do not know.
IDispatch* ToDispatch(const runtime::Ref<runtime::Object>& pObject);

}  // namespace qzbase::automation::com
