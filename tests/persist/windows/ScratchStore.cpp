#include "tests/persist/ScratchStore.h"

#include <windows.h>

namespace qzbase::tests {

ScratchStore::ScratchStore() = default;
ScratchStore::~ScratchStore() {
  RegDeleteTreeW(HKEY_CURRENT_USER, reinterpret_cast<const wchar_t*>(kSection.c_str()));
}

void ScratchStore::StoreUnended(const std::string& pSection, const std::string& pKey, const std::string& pText) {
  HKEY key = nullptr;
  RegCreateKeyExA(HKEY_CURRENT_USER, pSection.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &key, nullptr);
  const std::string followed = pText + 'x';  // so that the system sees no zero behind it
  RegSetValueExA(key, pKey.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(followed.data()),
                 static_cast<DWORD>(pText.size()));
  RegCloseKey(key);
}

}  // namespace qzbase::tests
