// All classes of the library by name, and objects created by name.
//
//   Ref<Object> vector = CreateObject(u"QZBase.CDblVector");
//   vector->Call(u"SetFromString", u"(3;1;2)");
//   vector->Call(u"Sort");
//   vector->Get(u"Value", 1);                                 // 1
//
// Every object of a class in this table answers calls by name (Object::Invoke); an empty name is that of its default
// member. Members with optional parameters in the middle and named arguments need `Invoke`.
#pragma once

#include <span>
#include <string_view>

#include "qzbase/automation/ClassEntry.h"
#include "qzbase/automation/Invoke.h"
#include "qzbase/automation/RecordObject.h"

namespace qzbase::automation {

std::span<const ClassEntry* const> Classes();

// "CDblVector", ignoring case; null if there is none.
const ClassEntry* FindClass(std::u16string_view pName);

// The class of an object; null for objects of other classes, such as records and a host's own objects.
const ClassEntry* ClassOf(const runtime::Object& pObject);

// "QZBase." and the name of a class, ignoring case. Raises 429 for any other name.
runtime::Ref<runtime::Object> CreateObject(std::u16string_view pProgId);

// Calls a member of any object, with named arguments and omitted ones (Invoke.h). An object that is not of this table
// takes neither: named arguments raise 448, omitted ones 449.
runtime::Variant Invoke(runtime::Object& pObject, std::u16string_view pName, runtime::CallKind pKind,
                        std::span<runtime::Variant* const> pArguments, std::span<const NamedArgument> pNamed = {});

}  // namespace qzbase::automation
