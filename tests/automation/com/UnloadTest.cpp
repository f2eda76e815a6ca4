// The DLL comes and goes: a copy of it, which no other test keeps loaded, is loaded and unloaded many times. Nothing
// may be left behind, whichever thread used it and however long that thread lives.
#include <thread>

#include <malloc.h>

#include "Client.h"

namespace qzbase::tests {
namespace {

class Unload : public testing::Test {
 protected:
  void SetUp() override {
    std::wstring folder(MAX_PATH, L'\0');
    folder.resize(GetModuleFileNameW(nullptr, folder.data(), MAX_PATH));
    folder.resize(folder.find_last_of(L'\\') + 1);
    path_ = folder + L"Unload" + std::to_wstring(GetCurrentProcessId()) + L".dll";
    ASSERT_TRUE(CopyFileW((folder + L"QZBase.dll").c_str(), path_.c_str(), FALSE));
    Load();
  }
  void TearDown() override {
    ExpectUnloaded();
    EXPECT_TRUE(DeleteFileW(path_.c_str()));
  }

  void Load() {
    module_ = LoadLibraryW(path_.c_str());
    ASSERT_NE(nullptr, module_);
  }
  void ExpectUnloaded() {
    EXPECT_EQ(S_OK, CanUnloadNow());
    EXPECT_TRUE(FreeLibrary(module_));
    EXPECT_EQ(nullptr, GetModuleHandleW(path_.c_str()));
  }

  template <class Function>
  Function Entry(const char* pName) const {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, pName)));
  }
  HRESULT CanUnloadNow() const { return Entry<HRESULT(WINAPI*)()>("DllCanUnloadNow")(); }
  HRESULT GetFactory(REFCLSID pClass, void** pResult) const {
    return Entry<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>("DllGetClassObject")(pClass, IID_IClassFactory, pResult);
  }

  template <class Interface>
  ComRef<Interface> Make(REFCLSID pClass) const {
    ComRef<IClassFactory> factory;
    ComRef<Interface> result;
    EXPECT_EQ(S_OK, GetFactory(pClass, factory.PutVoid()));
    EXPECT_EQ(S_OK, factory->CreateInstance(nullptr, __uuidof(Interface), result.PutVoid()));
    return result;
  }

  // Objects, an error with its texts, state of the thread, the type library.
  void Use() const {
    const auto vector = Make<_CDblVector>(__uuidof(CDblVector));
    const auto errors = Make<_GCError>(__uuidof(GCError));
    double value = 0;
    EXPECT_EQ(ErrorResult(9), vector->get_Value(99, &value));
    EXPECT_EQ("QZBase.CDblVector|Subscript out of range", ThreadError());
    OwnedVariant record;
    Call(errors, L"EDesc", {Long(1)}, &record.value);
    EXPECT_EQ(VT_RECORD, record.value.vt);
  }
  void UseInApartment() const {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    Use();
    CoUninitialize();
  }

  std::wstring path_;
  HMODULE module_ = nullptr;
};

std::ptrdiff_t BytesInUse() {
  std::ptrdiff_t bytes = 0;
  const HANDLE ours = GetProcessHeap();
  const auto runtime = reinterpret_cast<HANDLE>(_get_heap_handle());
  for (HANDLE heap : {ours, runtime == ours ? nullptr : runtime}) {
    if (!heap) continue;
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) bytes += entry.cbData;
    HeapUnlock(heap);
  }
  return bytes;
}

DWORD HandlesInUse() {
  DWORD count = 0;
  GetProcessHandleCount(GetCurrentProcess(), &count);
  return count;
}

// After a few rounds that fill caches.
template <class Round>
void ExpectNothingLeft(std::ptrdiff_t pBytesARound, Round pRound) {
  constexpr int kRounds = 100;
  for (int i = 0; i < 20; ++i) pRound();
  const std::ptrdiff_t bytes = BytesInUse();
  const DWORD handles = HandlesInUse();
  for (int i = 0; i < kRounds; ++i) pRound();
  EXPECT_LT(BytesInUse() - bytes, pBytesARound * kRounds);
  EXPECT_LE(HandlesInUse(), handles + 2);
}

TEST_F(Unload, ObjectsAndLocksKeepTheDll) {
  EXPECT_EQ(S_OK, CanUnloadNow());
  {
    const auto vector = Make<_CDblVector>(__uuidof(CDblVector));
    EXPECT_EQ(S_FALSE, CanUnloadNow());
    ComRef<_CDblVector> copy;
    EXPECT_EQ(S_OK, vector->GetCopy(copy.Put()));
  }
  EXPECT_EQ(S_OK, CanUnloadNow());
  ComRef<IClassFactory> factory;
  EXPECT_EQ(S_OK, GetFactory(__uuidof(CBuffer), factory.PutVoid()));
  EXPECT_EQ(S_OK, factory->LockServer(TRUE));
  EXPECT_EQ(S_FALSE, CanUnloadNow());
  EXPECT_EQ(S_OK, factory->LockServer(FALSE));
  void* none = this;
  EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE, GetFactory(IID_IUnknown, &none));
  EXPECT_EQ(nullptr, none);
  EXPECT_EQ(E_POINTER, GetFactory(__uuidof(CBuffer), nullptr));
}

TEST_F(Unload, CallsLeaveNothingBehind) {
  ExpectNothingLeft(5, [this] { Use(); });
}

// The state of a thread goes with it, while the DLL stays.
TEST_F(Unload, ThreadsLeaveNothingBehind) {
  ExpectNothingLeft(100, [this] { std::thread([this] { UseInApartment(); }).join(); });
}

// A second thread has used the DLL and ends before it is unloaded, or lives on. What the compiler's runtime keeps in
// each load, and of each thread that lives on, are its locks and its place for an exception; a registry of errors that
// is left behind takes more.
class UnloadRounds : public Unload, public testing::WithParamInterface<bool> {};

TEST_P(UnloadRounds, LeaveNothingBehind) {
  constexpr std::ptrdiff_t kBytesOfCompilerRuntime = 2600;
  ExpectNothingLeft(kBytesOfCompilerRuntime, [this] {
    Use();
    HANDLE unloaded = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE used = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread worker([&] {
      UseInApartment();
      SetEvent(used);
      if (GetParam()) WaitForSingleObject(unloaded, 30000);
    });
    WaitForSingleObject(used, 30000);
    if (!GetParam()) worker.join();
    ExpectUnloaded();
    SetEvent(unloaded);
    if (worker.joinable()) worker.join();
    CloseHandle(used);
    CloseHandle(unloaded);
    Load();
  });
}

INSTANTIATE_TEST_SUITE_P(WithAWorkerThatLivesOn, UnloadRounds, testing::Bool());

}  // namespace
}  // namespace qzbase::tests
