#include "qzbase/core/StringTable.h"

#include "qzbase/os/ThreadSlot.h"

namespace qzbase {

const std::u16string* StringTable::Find(std::u16string_view pKey) const {
  const auto entry = texts_.find(pKey);
  return entry == texts_.end() ? nullptr : &entry->second;
}

const std::u16string& StringTable::Add(std::u16string_view pKey, std::u16string_view pText) {
  return texts_.try_emplace(std::u16string(pKey), pText).first->second;
}

StringTable& ThreadStrings() {
  static os::PerThread<StringTable> strings;
  return *strings;
}

}  // namespace qzbase
