#include "tests/persist/ScratchStore.h"

#include <windows.h>

namespace qzbase::tests {

ScratchStore::ScratchStore() = default;
ScratchStore::~ScratchStore() {
  RegDeleteTreeW(HKEY_CURRENT_USER, reinterpret_cast<const wchar_t*>(kSection.c_str()));
}

}  // namespace qzbase::tests
