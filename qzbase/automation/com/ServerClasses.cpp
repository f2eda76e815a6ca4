#include <array>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/automation/members/Core.h"
#include "qzbase/automation/members/Data.h"
#include "qzbase/automation/members/Layout.h"
#include "qzbase/automation/members/Platform.h"

// The tables stand before the system's headers.
#include "qzbase/automation/com/RecordBorder.h"
#include "qzbase/automation/com/ServerClasses.h"

namespace qzbase::automation::com {
namespace {

std::array<const ServerClass*, AllClasses::kSize> JoinRooms() {
  std::array<const ServerClass*, AllClasses::kSize> classes{};
  std::size_t count = 0;
  for (const auto room : ForEachRoom([]<Room kRoom> { return ServerClassesOfRoom<kRoom>(); }))
    for (const ServerClass& each : room) classes[count++] = &each;
  return classes;
}

constexpr auto kRecords = []<class... R>(TypeList<R...>) { return std::array{serverRecord<R>...}; }(AllRecords());

template <class List, class Matches>
auto Find(const List& pList, Matches pMatches) noexcept -> decltype(&*pList.begin()) {
  const auto found = std::find_if(pList.begin(), pList.end(), pMatches);
  return found == pList.end() ? nullptr : &*found;
}

}  // namespace

std::u16string ProgId(const ServerClass& pClass) {
  return Widen(kLibraryName) + u'.' + Widen(pClass.entry->identity->name);
}

std::span<const ServerClass* const> ServerClasses() {
  static const auto classes = JoinRooms();
  return classes;
}

const ServerClass* FindServerClass(REFCLSID pClassId) noexcept {
  const auto* found = Find(ServerClasses(), [&](const ServerClass* pEach) { return pEach->classId == pClassId; });
  return found ? *found : nullptr;
}

const ServerClass* FindServerClass(const runtime::Object& pObject) noexcept {
  const auto* found =
      Find(ServerClasses(), [entry = ClassOf(pObject)](const ServerClass* pEach) { return pEach->entry == entry; });
  return found ? *found : nullptr;
}

const ServerRecord* FindServerRecord(REFGUID pId) noexcept {
  return Find(kRecords, [&](const ServerRecord& pEach) { return pEach.id == pId; });
}

const ServerRecord* FindServerRecord(const Record& pRecord) noexcept {
  return Find(kRecords, [&](const ServerRecord& pEach) { return pEach.desc == &pRecord.Desc(); });
}

}  // namespace qzbase::automation::com
