// Late binding: members called by name or id, with variants.
//
//   Variant position(0), value(2.5);
//   const NamedArgument named[] = {{u"pValue", &value}, {u"pAtPos", &position}};
//   InvokeByName(entry, object, u"insertvalue", CallKind::Method, {}, named);
//
// Arguments are pointers to the caller's variables, so that by-reference parameters can change them; they change only
// when the whole call has succeeded. A null pointer is an omitted argument, which takes its parameter's default, as do
// parameters behind the last argument. The new value of a let or set is the last argument of all.
//
// A call reaches a row of its own kind. A let or set with an object for value may also reach the other of the two where
// its own does not exist.
//
//   438  no such member, or not of this kind      448  no parameter of that name
//   450  more arguments than parameters           13, 6, 94  an argument does not convert (runtime/Convert.h)
//   449  an argument is missing                   91   an object that must be set is not
//
// Whatever the member raises, arrives as it is. ArgumentList.h and Call.h do the same for callers by automation.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "qzbase/automation/ClassEntry.h"
#include "qzbase/runtime/Object.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::automation {

struct NamedArgument {
  std::u16string_view name;  // of a parameter, ignoring case
  runtime::Variant* value = nullptr;
};

// `pObject` is of the class of `pEntry`. Neither allocates memory but for texts, arrays and objects.
runtime::Variant InvokeById(const ClassEntry& pEntry, runtime::Object& pObject, MemberId pId, runtime::CallKind pKind,
                            std::span<runtime::Variant* const> pArguments, std::span<const NamedArgument> pNamed = {});
runtime::Variant InvokeByName(const ClassEntry& pEntry, runtime::Object& pObject, std::u16string_view pName,
                              runtime::CallKind pKind, std::span<runtime::Variant* const> pArguments,
                              std::span<const NamedArgument> pNamed = {});

// The row that a call reaches. `pIsObject` tells of the new value of a let or set.
std::size_t SelectRow(const MemberTable& pTable, MemberId pId, runtime::CallKind pKind, bool pIsObject);

}  // namespace qzbase::automation
