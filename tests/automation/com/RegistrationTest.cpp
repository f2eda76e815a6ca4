// Registration for all users and for one, in a registry of the test's own: the real keys stay as they are.
#include "Client.h"

namespace qzbase::tests {
namespace {

constexpr const wchar_t* kPlayground = L"Software\\QZBaseRegistrationTest";
constexpr const wchar_t* kClassKey = L"CLSID\\{6565B8DF-CA64-49A4-82C1-091CD789EC5B}";
constexpr const wchar_t* kLibraryKey = L"TypeLib\\{6EFF960B-E38B-43CB-BC3D-1B9EC8E43D36}\\1.0";

// The real keys that the test's own ones stand for.
const struct {
  HKEY real;
  const wchar_t* name;
} kStands[] = {{HKEY_LOCAL_MACHINE, L"\\Machine"},
               {HKEY_CLASSES_ROOT, L"\\Machine\\Software\\Classes"},
               {HKEY_CURRENT_USER, L"\\User"}};

class Registration : public testing::Test {
 protected:
  void SetUp() override {
    module_ = LoadLibraryW(L"QZBase.dll");
    ASSERT_NE(nullptr, module_);
    RegDeleteTreeW(HKEY_CURRENT_USER, kPlayground);
    for (const auto& stand : kStands) {  // the user's own comes last
      HKEY key = nullptr;
      ASSERT_EQ(ERROR_SUCCESS,
                RegCreateKeyW(HKEY_CURRENT_USER, (std::wstring(kPlayground) + stand.name).c_str(), &key));
      ASSERT_EQ(ERROR_SUCCESS, RegOverridePredefKey(stand.real, key));
      RegCloseKey(key);
    }
  }
  void TearDown() override {
    for (const auto& stand : kStands) RegOverridePredefKey(stand.real, nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, kPlayground);
    FreeLibrary(module_);
  }

  HRESULT Call(const char* pExport) {
    return reinterpret_cast<HRESULT(WINAPI*)()>(reinterpret_cast<void*>(GetProcAddress(module_, pExport)))();
  }
  HRESULT Install(BOOL pIsInstalled, LPCWSTR pWhere) {
    const auto address = reinterpret_cast<void*>(GetProcAddress(module_, "DllInstall"));
    return reinterpret_cast<HRESULT(WINAPI*)(BOOL, LPCWSTR)>(address)(pIsInstalled, pWhere);
  }

  // A value below the classes, "(none)" where there is no such key.
  static std::wstring Value(HKEY pRoot, const std::wstring& pKey, const wchar_t* pName = nullptr) {
    wchar_t text[512] = L"";
    DWORD size = sizeof text;
    const std::wstring key = L"Software\\Classes\\" + pKey;
    const LSTATUS status = RegGetValueW(pRoot, key.c_str(), pName, RRF_RT_REG_SZ, nullptr, text, &size);
    return status == ERROR_SUCCESS ? text : L"(none)";
  }
  static bool Has(HKEY pRoot, const std::wstring& pKey) { return Value(pRoot, pKey) != L"(none)"; }
  static bool HasClass(HKEY pRoot) { return Has(pRoot, kClassKey) || Has(pRoot, L"QZBase.CBuffer"); }

  static void ExpectRegistered(HKEY pRoot) {
    const std::wstring key = kClassKey;
    EXPECT_EQ(key, L"CLSID\\" + Value(pRoot, L"QZBase.CBuffer\\CLSID"));
    EXPECT_NE(std::wstring::npos, Value(pRoot, key + L"\\InprocServer32").find(L"\\QZBase.dll"));
    EXPECT_EQ(L"Apartment", Value(pRoot, key + L"\\InprocServer32", L"ThreadingModel"));
    EXPECT_EQ(L"QZBase.CBuffer", Value(pRoot, key + L"\\ProgID"));
    EXPECT_EQ(L"QZBase.CBuffer", Value(pRoot, key + L"\\VersionIndependentProgID"));
    EXPECT_EQ(kLibraryKey, L"TypeLib\\" + Value(pRoot, key + L"\\TypeLib") + L"\\1.0");
    EXPECT_EQ(L"", Value(pRoot, key + L"\\Programmable"));
  }

  HMODULE module_ = nullptr;
};

TEST_F(Registration, ForTheMachineComesAndGoes) {
  for (int i = 0; i < 2; ++i) {  // a second time changes nothing
    ASSERT_EQ(S_OK, Call("DllRegisterServer"));
    ExpectRegistered(HKEY_LOCAL_MACHINE);
    EXPECT_TRUE(Has(HKEY_LOCAL_MACHINE, kLibraryKey));
  }
  EXPECT_FALSE(HasClass(HKEY_CURRENT_USER));
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(S_OK, Call("DllUnregisterServer"));
    EXPECT_FALSE(HasClass(HKEY_LOCAL_MACHINE));
    EXPECT_FALSE(Has(HKEY_LOCAL_MACHINE, kLibraryKey));
  }
}

// Where the type library goes is the system's choice: not every one knows type libraries of users.
TEST_F(Registration, ForOneUserComesAndGoes) {
  ASSERT_EQ(S_OK, Install(TRUE, L"User"));
  ExpectRegistered(HKEY_CURRENT_USER);
  EXPECT_FALSE(HasClass(HKEY_LOCAL_MACHINE));
  EXPECT_EQ(S_OK, Install(FALSE, L"user"));
  EXPECT_FALSE(HasClass(HKEY_CURRENT_USER));
}

// A key that lasts only until the system ends takes none that last longer below it.
TEST_F(Registration, ThatFailsHalfWayLeavesWhatWasThere) {
  constexpr const wchar_t* kLastClass = L"Software\\Classes\\CLSID\\{09EF0B15-C161-47D0-B8C4-B1AE9ABDCA74}";
  HKEY obstacle = nullptr;
  ASSERT_EQ(ERROR_SUCCESS, RegCreateKeyExW(HKEY_LOCAL_MACHINE, kLastClass, 0, nullptr, REG_OPTION_VOLATILE,
                                           KEY_ALL_ACCESS, nullptr, &obstacle, nullptr));
  RegCloseKey(obstacle);
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\QZBase.CBuffer", nullptr, REG_SZ, L"old",
                  4 * sizeof(wchar_t));
  EXPECT_TRUE(FAILED(Call("DllRegisterServer")));
  EXPECT_EQ(L"old", Value(HKEY_LOCAL_MACHINE, L"QZBase.CBuffer"));
  for (const wchar_t* key : {L"QZBase.CBuffer\\CLSID", kClassKey, kLibraryKey, L"QZBase.CLocalGUI"})
    EXPECT_FALSE(Has(HKEY_LOCAL_MACHINE, key)) << std::string(key, key + wcslen(key));
}

}  // namespace
}  // namespace qzbase::tests
