// Everything that is known of a class at run time, and the entries of the classes of one room.
#pragma once

#include <array>
#include <span>
#include <typeinfo>

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/VariantCall.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::automation {

struct ClassEntry {
  const Identity* identity = nullptr;
  const MemberTable* members = nullptr;
  const VariantFunction* functions = nullptr;  // one a row
  const std::type_info* type = nullptr;
  runtime::Ref<runtime::Object> (*create)() = nullptr;
};

template <class C>
inline constexpr ClassEntry classEntry = {&identity<C>, &memberTable<C>,
                                          functionsOf<C, VariantFunction, VariantCall>.data(), &typeid(C),
                                          [] { return runtime::Ref<runtime::Object>(runtime::New<C>()); }};

// Made in a file for each room (members/Room.cpp.in), so that none has to compile the members of the whole library.
template <Room kRoom>
std::span<const ClassEntry> EntriesOfRoom();

namespace detail {
template <class... C>
inline constexpr std::array classEntries = {classEntry<C>...};
}

}  // namespace qzbase::automation
