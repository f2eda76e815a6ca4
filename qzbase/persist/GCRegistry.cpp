#include "qzbase/persist/GCRegistry.h"

#include "qzbase/persist/ModRegistry.h"

namespace qzbase {

std::int32_t GCRegistry::REGCreateNewSection(TRegKey HKEY, std::u16string_view Section) {
  return ModRegistry::CreateNewSection(HKEY, Section);
}

std::int32_t GCRegistry::REGSaveBuffer(TRegKey HKEY, std::u16string_view Section, std::u16string_view Key,
                                       const CBuffer& Buffer) {
  return ModRegistry::SaveBuffer(HKEY, Section, Key, Buffer);
}

Ref<CBuffer> GCRegistry::REGGetBuffer(TRegKey HKEY, std::u16string_view Section, std::u16string_view Key) {
  return ModRegistry::GetBuffer(HKEY, Section, Key);
}

std::int32_t GCRegistry::REGSaveValue(TRegKey HKEY, std::u16string_view Section, std::u16string_view Key,
                                      const runtime::Variant& Value) {
  return ModRegistry::SaveValue(HKEY, Section, Key, Value);
}

runtime::Variant GCRegistry::REGGetValue(TRegKey HKEY, std::u16string_view Section, std::u16string_view Key) {
  return ModRegistry::GetValue(HKEY, Section, Key);
}

std::int32_t GCRegistry::REGDeleteValue(TRegKey HKEY, std::u16string_view Section, std::u16string_view Key) {
  return ModRegistry::DeleteValue(HKEY, Section, Key);
}

std::int32_t GCRegistry::REGDeleteSection(TRegKey HKEY, std::u16string_view Section) {
  return ModRegistry::DeleteSection(HKEY, Section);
}

}  // namespace qzbase
