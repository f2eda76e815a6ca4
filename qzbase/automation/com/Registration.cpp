#include "qzbase/automation/com/Registration.h"

#include <string>
#include <vector>

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/com/Guid.h"
#include "qzbase/automation/com/Module.h"
#include "qzbase/automation/com/ServerClasses.h"

// Missing from the headers of mingw-w64, though not from its libraries.
extern "C" {
HRESULT WINAPI RegisterTypeLibForUser(ITypeLib* pLibrary, OLECHAR* pPath, OLECHAR* pHelpFolder);
HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID pLibrary, WORD pMajor, WORD pMinor, LCID pLocale, SYSKIND pSystem);
}

namespace qzbase::automation::com {
namespace {

constexpr GUID kLibraryId = ParseGuid(kLibraryGuid);
constexpr SYSKIND kSystem = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;

void Check(HRESULT pResult) {
  if (FAILED(pResult)) throw RegistrationFault{pResult};
}

struct RegistryValue {
  std::wstring key;
  const wchar_t* name;  // null for the key's own value
  std::wstring text;
};

std::wstring Wide(std::u16string_view pText) {
  return {AsWide(pText.data()), pText.size()};
}

std::wstring Wide(std::string_view pText) {
  return {pText.begin(), pText.end()};
}

std::wstring Braced(REFGUID pId) {
  wchar_t text[40];
  StringFromGUID2(pId, text, static_cast<int>(std::size(text)));
  return text;
}

HKEY Root(Audience pAudience) noexcept {
  return pAudience == Audience::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

struct ClassKeys {
  std::wstring progId;
  std::wstring classId;
};

ClassKeys KeysOf(const ServerClass& pClass) {
  const std::wstring classes = L"Software\\Classes\\";
  return {classes + Wide(ProgId(pClass)), classes + L"CLSID\\" + Braced(pClass.classId)};
}

std::vector<RegistryValue> ValuesOf(const ServerClass& pClass, const std::wstring& pPath) {
  const auto [progKey, key] = KeysOf(pClass);
  const std::wstring progId = Wide(ProgId(pClass));
  const std::wstring help = Wide(pClass.entry->identity->help);
  return {{progKey, nullptr, help},
          {progKey + L"\\CLSID", nullptr, Braced(pClass.classId)},
          {key, nullptr, help},
          {key + L"\\InprocServer32", nullptr, pPath},
          {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
          {key + L"\\ProgID", nullptr, progId},
          {key + L"\\VersionIndependentProgID", nullptr, progId},
          {key + L"\\TypeLib", nullptr, Braced(kLibraryId)},
          {key + L"\\Version", nullptr, Wide(kLibraryVersion)},
          {key + L"\\Programmable", nullptr, L""}};
}

void Write(HKEY pRoot, const RegistryValue& pValue) {
  const auto size = static_cast<DWORD>((pValue.text.size() + 1) * sizeof(wchar_t));
  const LSTATUS status = RegSetKeyValueW(pRoot, pValue.key.c_str(), pValue.name, REG_SZ, pValue.text.c_str(), size);
  Check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
}

// Puts back what was there unless it is dropped.
class Restoration {
 public:
  explicit Restoration(HKEY pRoot) : root_(pRoot) {}
  ~Restoration() {
    for (auto each = values_.rbegin(); each != values_.rend(); ++each) {
      if (each->existed)
        RegSetKeyValueW(root_, each->value.key.c_str(), each->value.name, REG_SZ, each->value.text.c_str(),
                        static_cast<DWORD>((each->value.text.size() + 1) * sizeof(wchar_t)));
      else
        RegDeleteKeyValueW(root_, each->value.key.c_str(), each->value.name);
    }
    for (auto each = fresh_.rbegin(); each != fresh_.rend(); ++each) RegDeleteKeyW(root_, each->c_str());
  }
  Restoration(const Restoration&) = delete;
  Restoration& operator=(const Restoration&) = delete;

  // Before a value is written.
  void Keep(const RegistryValue& pValue) {
    for (std::size_t end = pValue.key.find(L'\\', kClassesLength); end != std::wstring::npos;
         end = pValue.key.find(L'\\', end + 1))
      KeepKey(pValue.key.substr(0, end));
    KeepKey(pValue.key);
    Old old{pValue, false};
    DWORD size = 0;
    if (RegGetValueW(root_, pValue.key.c_str(), pValue.name, RRF_RT_REG_SZ, nullptr, nullptr, &size) == ERROR_SUCCESS) {
      old.value.text.resize(size / sizeof(wchar_t));
      old.existed = RegGetValueW(root_, pValue.key.c_str(), pValue.name, RRF_RT_REG_SZ, nullptr, old.value.text.data(),
                                 &size) == ERROR_SUCCESS;
      old.value.text.resize(wcslen(old.value.text.c_str()));
    }
    values_.push_back(std::move(old));
  }
  void Drop() noexcept {
    values_.clear();
    fresh_.clear();
  }

 private:
  struct Old {
    RegistryValue value;
    bool existed;
  };
  static constexpr std::size_t kClassesLength = std::size(L"Software\\Classes\\") - 1;

  void KeepKey(const std::wstring& pKey) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(root_, pKey.c_str(), 0, KEY_READ, &key) == ERROR_SUCCESS)
      RegCloseKey(key);
    else if (fresh_.empty() || fresh_.back() != pKey)
      fresh_.push_back(pKey);
  }

  HKEY root_;
  std::vector<Old> values_;
  std::vector<std::wstring> fresh_;
};

void RegisterLibrary(Audience pAudience, std::wstring pPath) {
  const ComRef<ITypeLib> library = TypeLibrary();
  Check(pAudience == Audience::User ? RegisterTypeLibForUser(library.Get(), pPath.data(), nullptr)
                                    : RegisterTypeLib(library.Get(), pPath.data(), nullptr));
}

void RemoveKey(HKEY pRoot, const std::wstring& pKey, LSTATUS& pStatus) {
  const LSTATUS status = RegDeleteTreeW(pRoot, pKey.c_str());
  if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) pStatus = status;
}

}  // namespace

void Register(Audience pAudience) {
  const std::wstring path = ModulePath();
  const HKEY root = Root(pAudience);
  Restoration before(root);
  for (const ServerClass* each : ServerClasses())
    for (const RegistryValue& value : ValuesOf(*each, path)) {
      before.Keep(value);
      Write(root, value);
    }
  RegisterLibrary(pAudience, path);
  before.Drop();
}

// Removes what it can; what is not there, is gone already.
void Unregister(Audience pAudience) {
  LSTATUS status = ERROR_SUCCESS;
  for (const ServerClass* each : ServerClasses()) {
    const auto [progId, classId] = KeysOf(*each);
    RemoveKey(Root(pAudience), progId, status);
    RemoveKey(Root(pAudience), classId, status);
  }
  const HRESULT library = pAudience == Audience::User
                              ? UnRegisterTypeLibForUser(kLibraryId, 1, 0, LOCALE_NEUTRAL, kSystem)
                              : UnRegisterTypeLib(kLibraryId, 1, 0, LOCALE_NEUTRAL, kSystem);
  Check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
  const bool wasRegistered = library != TYPE_E_REGISTRYACCESS && library != E_INVALIDARG;
  if (wasRegistered) Check(library);
}

}  // namespace qzbase::automation::com
