// The faces of the classes of one room. Each room has a source file in faces/ that makes them (as RoomEntries.h does
// for late binding).
#pragma once

#include <array>
#include <utility>

#include "qzbase/automation/RoomEntries.h"
#include "qzbase/automation/com/Faces.h"
#include "qzbase/automation/com/Guid.h"
#include "qzbase/automation/com/RecordBorder.h"
#include "qzbase/automation/com/Slots.h"

namespace qzbase::automation::com {

template <class List>
struct RoomFaces;

template <class... C>
struct RoomFaces<TypeList<C...>> {
  static_assert(((sizeof(Slots<C>) == (7 + members<C>.kSize) * sizeof(void*)) && ...),
                "a slot is not where it belongs");

  static const std::array<Face, sizeof...(C)> kFaces;
};

template <class... C>
constinit const std::array<Face, sizeof...(C)> RoomFaces<TypeList<C...>>::kFaces = [
]<std::size_t... kAt>(std::index_sequence<kAt...>) {
  return std::array<Face, sizeof...(C)>{Face{&RoomEntries<TypeList<C...>>::kEntries[kAt], &slots<C>,
                                             ParseGuid(identity<C>.guid), ParseGuid(identity<C>.interfaceGuid)}...};
}
(std::index_sequence_for<C...>());

}  // namespace qzbase::automation::com
