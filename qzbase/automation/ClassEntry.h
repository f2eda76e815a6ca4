// Everything that is known of a class at run time.
#pragma once

#include <typeinfo>

#include "qzbase/automation/Members.h"
#include "qzbase/automation/Thunk.h"
#include "qzbase/automation/Types.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::automation {

struct ClassEntry {
  const Identity* identity = nullptr;
  const MemberTable* members = nullptr;
  const Thunk* thunks = nullptr;  // one a row
  const std::type_info* type = nullptr;
  runtime::Ref<runtime::Object> (*create)() = nullptr;
};

template <class C>
inline constexpr ClassEntry classEntry = {&identity<C>, &memberTable<C>, thunks<C>.data(), &typeid(C),
                                          [] { return runtime::Ref<runtime::Object>(runtime::New<C>()); }};

}  // namespace qzbase::automation
