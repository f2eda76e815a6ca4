// Registration for all users and for one, in a registry of the test's own: the real keys stay as they are.
#include "Client.h"

namespace qzbase::tests {
namespace {

using Entry = HRESULT(WINAPI*)();
using InstallEntry = HRESULT(WINAPI*)(BOOL, LPCWSTR);

constexpr const wchar_t* kPlayground = L"Software\\QZBaseRegistrationTest";
constexpr const wchar_t* kClassKey = L"Software\\Classes\\CLSID\\{6565B8DF-CA64-49A4-82C1-091CD789EC5B}";
constexpr const wchar_t* kLibraryKey = L"Software\\Classes\\TypeLib\\{6EFF960B-E38B-43CB-BC3D-1B9EC8E43D36}\\1.0";

class Registration : public testing::Test {
 protected:
  void SetUp() override {
    module_ = LoadLibraryW(L"QZBase.dll");
    ASSERT_NE(nullptr, module_);
    RegDeleteTreeW(HKEY_CURRENT_USER, kPlayground);
    machine_ = Make(L"\\Machine");
    user_ = Make(L"\\User");
    machineClasses_ = Make(L"\\Machine\\Software\\Classes");
    ASSERT_EQ(ERROR_SUCCESS, RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine_));
    ASSERT_EQ(ERROR_SUCCESS, RegOverridePredefKey(HKEY_CLASSES_ROOT, machineClasses_));
    ASSERT_EQ(ERROR_SUCCESS, RegOverridePredefKey(HKEY_CURRENT_USER, user_));
  }
  void TearDown() override {
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    for (HKEY key : {machine_, user_, machineClasses_}) RegCloseKey(key);
    RegDeleteTreeW(HKEY_CURRENT_USER, kPlayground);
    FreeLibrary(module_);
  }

  static HKEY Make(const wchar_t* pName) {
    HKEY key = nullptr;
    const std::wstring path = std::wstring(kPlayground) + pName;
    EXPECT_EQ(ERROR_SUCCESS,
              RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr));
    return key;
  }

  template <class Function>
  Function Export(const char* pName) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, pName)));
  }

  static std::wstring Value(HKEY pRoot, const std::wstring& pKey, const wchar_t* pName = nullptr) {
    wchar_t text[512] = L"";
    DWORD size = sizeof text;
    return RegGetValueW(pRoot, pKey.c_str(), pName, RRF_RT_REG_SZ, nullptr, text, &size) == ERROR_SUCCESS ? text
                                                                                                          : L"(none)";
  }

  static void ExpectRegistered(HKEY pRoot) {
    const std::wstring key = kClassKey;
    EXPECT_EQ(L"{6565B8DF-CA64-49A4-82C1-091CD789EC5B}", Value(pRoot, L"Software\\Classes\\QZBase.CBuffer\\CLSID"));
    EXPECT_NE(std::wstring::npos, Value(pRoot, key + L"\\InprocServer32").find(L"\\QZBase.dll"));
    EXPECT_EQ(L"Apartment", Value(pRoot, key + L"\\InprocServer32", L"ThreadingModel"));
    EXPECT_EQ(L"QZBase.CBuffer", Value(pRoot, key + L"\\ProgID"));
    EXPECT_EQ(L"QZBase.CBuffer", Value(pRoot, key + L"\\VersionIndependentProgID"));
    EXPECT_EQ(L"{6EFF960B-E38B-43CB-BC3D-1B9EC8E43D36}", Value(pRoot, key + L"\\TypeLib"));
    EXPECT_EQ(L"", Value(pRoot, key + L"\\Programmable"));
  }

  static bool Has(HKEY pRoot, const wchar_t* pKey) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(pRoot, pKey, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
  }
  static bool HasClass(HKEY pRoot) { return Has(pRoot, kClassKey) || Has(pRoot, L"Software\\Classes\\QZBase.CBuffer"); }

  HMODULE module_ = nullptr;
  HKEY machine_ = nullptr;
  HKEY user_ = nullptr;
  HKEY machineClasses_ = nullptr;
};

TEST_F(Registration, ForTheMachineComesAndGoes) {
  for (int i = 0; i < 2; ++i) {  // a second time changes nothing
    ASSERT_EQ(S_OK, Export<Entry>("DllRegisterServer")());
    ExpectRegistered(HKEY_LOCAL_MACHINE);
    EXPECT_TRUE(Has(HKEY_LOCAL_MACHINE, kLibraryKey));
  }
  EXPECT_FALSE(HasClass(HKEY_CURRENT_USER));
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(S_OK, Export<Entry>("DllUnregisterServer")());
    EXPECT_FALSE(HasClass(HKEY_LOCAL_MACHINE));
    EXPECT_FALSE(Has(HKEY_LOCAL_MACHINE, kLibraryKey));
  }
}

// Where the type library goes is the system's choice: not every one knows type libraries of users.
TEST_F(Registration, ForOneUserComesAndGoes) {
  const auto install = Export<InstallEntry>("DllInstall");
  ASSERT_EQ(S_OK, install(TRUE, L"User"));
  ExpectRegistered(HKEY_CURRENT_USER);
  EXPECT_FALSE(HasClass(HKEY_LOCAL_MACHINE));
  EXPECT_EQ(S_OK, install(FALSE, L"user"));
  EXPECT_FALSE(HasClass(HKEY_CURRENT_USER));
}

}  // namespace
}  // namespace qzbase::tests
