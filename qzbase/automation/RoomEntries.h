// The entries of the classes of one room. Each room has a source file in members/ that makes them, so that no file has
// to compile the members of the whole library.
#pragma once

#include <array>

#include "qzbase/automation/ClassEntry.h"
#include "qzbase/automation/Types.h"

namespace qzbase::automation {

template <class List>
struct RoomEntries;

template <class... C>
struct RoomEntries<TypeList<C...>> {
  static const std::array<ClassEntry, sizeof...(C)> kEntries;
};

template <class... C>
constinit const std::array<ClassEntry, sizeof...(C)> RoomEntries<TypeList<C...>>::kEntries = {classEntry<C>...};

}  // namespace qzbase::automation
