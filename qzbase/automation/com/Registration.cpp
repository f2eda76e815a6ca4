#include "qzbase/automation/com/Registration.h"

#include <string>
#include <vector>

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/com/Faces.h"
#include "qzbase/automation/com/Guid.h"
#include "qzbase/automation/com/Module.h"

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

ClassKeys KeysOf(const Face& pFace) {
  const std::wstring classes = L"Software\\Classes\\";
  return {classes + Wide(ProgId(pFace)), classes + L"CLSID\\" + Braced(pFace.classId)};
}

std::vector<RegistryValue> ValuesOf(const Face& pFace, const std::wstring& pPath) {
  const auto [progKey, key] = KeysOf(pFace);
  const std::wstring progId = Wide(ProgId(pFace));
  const std::wstring help = Wide(pFace.entry->identity->help);
  return {{progKey, nullptr, help},
          {progKey + L"\\CLSID", nullptr, Braced(pFace.classId)},
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
  try {
    for (const Face* face : AllFaces())
      for (const RegistryValue& value : ValuesOf(*face, path)) Write(Root(pAudience), value);
    RegisterLibrary(pAudience, path);
  } catch (...) {
    try {
      Unregister(pAudience);
    } catch (const RegistrationFault&) {  // the first one says more
    }
    throw;
  }
}

// Removes what it can; what is not there, is gone already.
void Unregister(Audience pAudience) {
  LSTATUS status = ERROR_SUCCESS;
  for (const Face* face : AllFaces()) {
    const auto [progId, classId] = KeysOf(*face);
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
