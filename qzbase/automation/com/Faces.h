// What the server knows of every class and record: made from the tables, listed in Faces.cpp.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "qzbase/automation/ClassEntry.h"
#include "qzbase/automation/RecordObject.h"
#include "qzbase/automation/com/Platform.h"

namespace qzbase::automation::com {

struct Face {
  const ClassEntry* entry = nullptr;
  const void* slots = nullptr;  // the dual interface (Slots.h)
  GUID classId{};
  GUID interfaceId{};
};

// "QZBase.CBuffer"
std::u16string ProgId(const Face& pFace);

// How a record lies in memory for hosts (RecordBorder.h).
struct RecordFace {
  const RecordDesc* desc = nullptr;
  GUID id{};
  std::size_t size = 0;
  runtime::Ref<Record> (*load)(const void* pNative) = nullptr;
  void (*store)(const Record& pRecord, void* pNative) = nullptr;  // into zeroed memory
};

std::span<const Face* const> AllFaces();

// Null where there is none.
const Face* FindFace(REFCLSID pClassId) noexcept;
const Face* FindFace(const runtime::Object& pObject) noexcept;
const RecordFace* FindRecordFace(REFGUID pId) noexcept;
const RecordFace* FindRecordFace(const Record& pRecord) noexcept;

}  // namespace qzbase::automation::com
