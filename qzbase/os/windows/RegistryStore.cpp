#include "qzbase/os/RegistryStore.h"

#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

#include <windows.h>

namespace qzbase::os {
namespace {

struct CloseKey {
  void operator()(HKEY pKey) const noexcept { RegCloseKey(pKey); }
};
using KeyHandle = std::unique_ptr<std::remove_pointer_t<HKEY>, CloseKey>;

RegistryResult ResultOf(LSTATUS pStatus) noexcept {
  return static_cast<RegistryResult>(pStatus);
}

HKEY HandleOf(std::int32_t pNumber) noexcept {
  return reinterpret_cast<HKEY>(static_cast<std::intptr_t>(pNumber));
}

// Handles of roots are sign-extended to the width of a pointer.
HKEY RootHandle(std::int32_t pRoot) noexcept {
  return HandleOf(static_cast<std::int32_t>(0x80000000u + static_cast<std::uint32_t>(pRoot)));
}

RegistryResult CreateKey(std::int32_t pRoot, const std::string& pSection, REGSAM pAccess, KeyHandle& pKey) {
  HKEY key = nullptr;
  const LSTATUS status = RegCreateKeyExA(RootHandle(pRoot), pSection.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                         pAccess, nullptr, &key, nullptr);
  if (status == ERROR_SUCCESS) pKey.reset(key);
  return ResultOf(status);
}

RegistryResult OpenKey(std::int32_t pRoot, const std::string& pSection, REGSAM pAccess, KeyHandle& pKey) {
  HKEY key = nullptr;
  const LSTATUS status = RegOpenKeyExA(RootHandle(pRoot), pSection.c_str(), 0, pAccess, &key);
  if (status == ERROR_SUCCESS) pKey.reset(key);
  return ResultOf(status);
}

}  // namespace

RegistryResult MakeRegistrySection(std::int32_t pRoot, const std::string& pSection) {
  KeyHandle key;
  return CreateKey(pRoot, pSection, KEY_CREATE_SUB_KEY, key);
}

RegistryResult WriteRegistryValue(std::int32_t pRoot, const std::string& pSection, const std::string& pKey,
                                  const RegistryValue& pValue) {
  KeyHandle key;
  const RegistryResult opened = CreateKey(pRoot, pSection, KEY_SET_VALUE | KEY_CREATE_SUB_KEY, key);
  if (opened != RegistryResult::Success || pValue.kind == RegistryKind::None) return opened;
  if (pValue.data.size() >= std::numeric_limits<DWORD>::max()) return RegistryResult::OutOfMemory;
  // The system decides by the zero that it finds behind a text's characters whether to store one.
  std::vector<std::uint8_t> data = pValue.data;
  data.push_back(0);
  return ResultOf(RegSetValueExA(key.get(), pKey.c_str(), 0, static_cast<DWORD>(pValue.kind), data.data(),
                                 static_cast<DWORD>(pValue.data.size())));
}

RegistryResult ReadRegistryValue(std::int32_t pRoot, const std::string& pSection, const std::string& pKey,
                                 RegistryValue& pValue) {
  KeyHandle key;
  const RegistryResult opened = OpenKey(pRoot, pSection, KEY_QUERY_VALUE, key);
  if (opened != RegistryResult::Success) return opened;
  // The length that the system tells may be out of date with the next call, and says nothing below some roots.
  constexpr DWORD kFirstRoom = 1024;
  constexpr DWORD kMostRoom = DWORD{1} << 30;
  std::vector<std::uint8_t> data;
  DWORD type = 0;
  DWORD size = 0;
  LSTATUS status = ERROR_MORE_DATA;
  for (DWORD room = kFirstRoom; status == ERROR_MORE_DATA && room <= kMostRoom; room *= 2) {
    data.resize(room);
    size = room;
    status = RegQueryValueExA(key.get(), pKey.c_str(), nullptr, &type, data.data(), &size);
  }
  if (status != ERROR_SUCCESS) return ResultOf(status);
  data.resize(size);
  pValue = {static_cast<RegistryKind>(type), std::move(data)};
  return RegistryResult::Success;
}

RegistryResult RemoveRegistryValue(std::int32_t pRoot, const std::string& pSection, const std::string& pKey) {
  KeyHandle key;
  const RegistryResult opened = OpenKey(pRoot, pSection, KEY_SET_VALUE, key);
  return opened == RegistryResult::Success ? ResultOf(RegDeleteValueA(key.get(), pKey.c_str())) : opened;
}

RegistryResult RemoveRegistrySection(std::int32_t pHandle, const std::string& pSection) {
  return ResultOf(RegDeleteKeyA(HandleOf(pHandle), pSection.c_str()));
}

}  // namespace qzbase::os
