#include <array>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/automation/Identities.h"
#include "qzbase/automation/members/Core.h"
#include "qzbase/automation/members/Data.h"
#include "qzbase/automation/members/Desc.h"
#include "qzbase/automation/members/Layout.h"
#include "qzbase/automation/members/Locale.h"
#include "qzbase/automation/members/Persist.h"
#include "qzbase/automation/members/Platform.h"
#include "qzbase/automation/members/Text.h"

// The tables stand before the system's headers.
#include "qzbase/automation/com/Faces.h"
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

extern template struct RoomFaces<CoreClasses>;
extern template struct RoomFaces<TextClasses>;
extern template struct RoomFaces<PersistClasses>;
extern template struct RoomFaces<DescClasses>;
extern template struct RoomFaces<DataClasses>;
extern template struct RoomFaces<LayoutClasses>;
extern template struct RoomFaces<PlatformClasses>;
extern template struct RoomFaces<LocaleClasses>;

namespace {

template <class... List>
std::array<const Face*, AllClasses::kSize> JoinFaces(TypeList<List...>) {
  std::array<const Face*, AllClasses::kSize> faces{};
  std::size_t count = 0;
  const auto add = [&](const auto& pRoom) {
    for (const Face& face : pRoom) faces[count++] = &face;
  };
  (add(RoomFaces<List>::kFaces), ...);
  return faces;
}

template <class... R>
constexpr std::array<RecordFace, sizeof...(R)> MakeRecordFaces(TypeList<R...>) {
  return {recordFace<R>...};
}

constexpr auto kRecordFaces = MakeRecordFaces(AllRecords());

}  // namespace

std::u16string ProgId(const Face& pFace) {
  return Widen(kLibraryName) + u'.' + Widen(pFace.entry->identity->name);
}

std::span<const Face* const> AllFaces() {
  static const auto faces = JoinFaces(Rooms());
  return faces;
}

const Face* FindFace(REFCLSID pClassId) noexcept {
  for (const Face* face : AllFaces())
    if (face->classId == pClassId) return face;
  return nullptr;
}

const Face* FindFace(const runtime::Object& pObject) noexcept {
  const ClassEntry* entry = ClassOf(pObject);
  for (const Face* face : AllFaces())
    if (face->entry == entry) return face;
  return nullptr;
}

const RecordFace* FindRecordFace(REFGUID pId) noexcept {
  for (const RecordFace& face : kRecordFaces)
    if (face.id == pId) return &face;
  return nullptr;
}

const RecordFace* FindRecordFace(const Record& pRecord) noexcept {
  for (const RecordFace& face : kRecordFaces)
    if (face.desc == &pRecord.Desc()) return &face;
  return nullptr;
}

}  // namespace qzbase::automation::com
