// What every object is: something held by reference whose members can be called by name.
//
// Objects are made by `New<T>()`, held by `Ref<T>` and never copied by C++ copy. Whether an object is one of this
// library or comes from a host, its members answer to their names, ignoring case:
//
//   Variant count = list->Get(u"ListCount");
//   list->Call(u"AddItem", u"third line", 3);
//   list->Let(u"Selected", 2, true);        // index first, the new value last
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

namespace qzbase::runtime {

class Variant;

template <class T>
using Ref = std::shared_ptr<T>;

template <class T, class... Arguments>
Ref<T> New(Arguments&&... pArguments) {
  return std::make_shared<T>(std::forward<Arguments>(pArguments)...);
}

// How a member is called. The values are those of the platform's dispatch flags, so that they can be joined ("method or
// property get").
enum class CallKind : std::uint16_t { Method = 1, Get = 2, MethodOrGet = 3, Let = 4, Set = 8 };

// A member of an interface that the platform itself defines: its number there, and its name. The number is the same in
// every object that has the interface, whatever language that calls its members by: the Bold of a standard font is 3.
struct NumberedMember {
  std::int32_t number = 0;
  std::u16string_view name;
};

class Object : public std::enable_shared_from_this<Object> {
 public:
  Object() = default;
  virtual ~Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  // Calls the member `pName`, the default member for an empty name. Arguments are in the order of its parameters, the
  // new value of a let or set last; a by-reference parameter changes its argument. Raises error 438 where the object
  // has no such member, and what the member raises.
  //
  // The classes of this library have the members of their tables (automation/ClassTable.h). Objects from elsewhere, a
  // host's own or a test's, override it.
  virtual Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments);

  // The same for a member that has a number. An object of an automation host is called by the number, every other one
  // by the name.
  virtual Variant InvokeNumbered(const NumberedMember& pMember, CallKind pKind, std::span<Variant> pArguments);

  // By what a host holds this object, while it does: for the automation server alone, which gives out the same object
  // by the same address.
  void* outerFace = nullptr;

  template <class... Arguments>
  Variant Call(std::u16string_view pName, Arguments&&... pArguments);
  template <class... Arguments>
  Variant Get(std::u16string_view pName, Arguments&&... pArguments);
  template <class... Arguments>
  void Let(std::u16string_view pName, Arguments&&... pArguments);
  template <class... Arguments>
  void Set(std::u16string_view pName, Arguments&&... pArguments);
};

}  // namespace qzbase::runtime

// The library's own users make and hold objects without naming the room.
namespace qzbase {
using runtime::New;
using runtime::Ref;
}  // namespace qzbase

#include "qzbase/runtime/Variant.h"
