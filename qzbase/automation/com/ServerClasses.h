// What the server knows of every class and record: made from the tables, a file for the classes of each room
// (ServerRoom.cpp.in).
#pragma once

#include <span>
#include <string>

#include "qzbase/automation/ClassEntry.h"
#include "qzbase/automation/RecordObject.h"
#include "qzbase/automation/com/Platform.h"

namespace qzbase::automation::com {

// Calls a member with the variants of a late-bound caller, null where one is left out. `pResult` may be null.
using DispatchFunction = void (*)(runtime::Object& pObject, VARIANT* const* pArguments, VARIANT* pResult);

struct ServerClass {
  const ClassEntry* entry = nullptr;
  const DispatchFunction* functions = nullptr;  // one a row
  const void* slots = nullptr;                  // the dual interface (Slots.h)
  GUID classId{};
  GUID interfaceId{};
};

// "QZBase.CBuffer"
std::u16string ProgId(const ServerClass& pClass);

// How a record lies in memory for hosts (RecordBorder.h).
struct ServerRecord {
  const RecordDesc* desc = nullptr;
  GUID id{};
  std::size_t size = 0;
  runtime::Ref<Record> (*load)(const void* pNative) = nullptr;
  void (*store)(const Record& pRecord, void* pNative) = nullptr;  // into zeroed memory
};

template <Room kRoom>
std::span<const ServerClass> ServerClassesOfRoom();

std::span<const ServerClass* const> ServerClasses();

// Null where there is none.
const ServerClass* FindServerClass(REFCLSID pClassId) noexcept;
const ServerClass* FindServerClass(const runtime::Object& pObject) noexcept;
const ServerRecord* FindServerRecord(REFGUID pId) noexcept;
const ServerRecord* FindServerRecord(const Record& pRecord) noexcept;

}  // namespace qzbase::automation::com
