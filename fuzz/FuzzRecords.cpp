// Every class that loads itself, on hostile bytes: loading fails only with errors that are documented, and leaves an
// object that can be used. What was loaded saves itself, and the saved bytes, where they load, save themselves again;
// values without a type are excepted, whose records cannot be read back.
#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "fuzz/Input.h"
#include "qzbase/automation/ClassTable.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/AutomationError.h"

using namespace qzbase;

namespace {

// False where it raised an error, which must be a documented one.
template <class Call>
bool Succeeds(Call pCall) {
  try {
    pCall();
    return true;
  } catch (const runtime::AutomationError& error) {
    constexpr std::int32_t kDocumented[] = {5, 6, 7, 9, 13, 28, 91, 438, 1010};
    if (std::find(std::begin(kDocumented), std::end(kDocumented), error.Number()) == std::end(kDocumented))
      std::abort();
    return false;
  }
}

bool HoldsValuesWithoutType(const automation::ClassEntry& pClass) {
  constexpr std::string_view kNames[] = {"CVector", "CMatrix", "CEntryData", "CTable", "CTypedInfo", "CLayoutTable"};
  return std::find(std::begin(kNames), std::end(kNames), pClass.identity->name) != std::end(kNames);
}

std::vector<const automation::ClassEntry*> LoadingClasses() {
  std::vector<const automation::ClassEntry*> classes;
  for (const automation::ClassEntry* entry : automation::Classes())
    if (entry->members->Find(u"LoadFromBuffer") != automation::kNoMember) classes.push_back(entry);
  return classes;
}

void LoadAndSave(const automation::ClassEntry& pClass, const Ref<CBuffer>& pBuffer) {
  const auto object = pClass.create();
  Succeeds([&] { object->Call(u"LoadFromBuffer", pBuffer); });
  const auto saved = New<CBuffer>();
  const auto again = pClass.create();
  const bool loads = Succeeds([&] { object->Call(u"SaveToBuffer", saved); }) &&
                     Succeeds([&] { again->Call(u"LoadFromBuffer", saved); });
  const auto savedAgain = New<CBuffer>();
  const bool saves = loads && Succeeds([&] { again->Call(u"SaveToBuffer", savedAgain); });
  if (saves && !HoldsValuesWithoutType(pClass) && !savedAgain->BinaryEqual(*saved)) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t pSize) {
  static const auto classes = LoadingClasses();
  if (pSize == 0) return 0;
  const auto buffer = New<CBuffer>();
  for (const automation::ClassEntry* each : classes) {
    buffer->LetByteArray(runtime::Array<std::uint8_t>(0, {pData, pData + pSize}));
    LoadAndSave(*each, buffer);
  }
  return 0;
}
