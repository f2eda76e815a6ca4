// The DLL comes and goes: a copy of it, which no other test keeps loaded, is loaded and unloaded many times. Nothing
// may be left behind, whichever thread used it and however long that thread lives.
#include <thread>

#include <malloc.h>

#include "Client.h"

namespace qzbase::tests {
namespace {

using GetClassObject = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
using CanUnloadNow = HRESULT(WINAPI*)();

template <class Function>
Function Entry(HMODULE pModule, const char* pName) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(pModule, pName)));
}

class Unload : public testing::Test {
 protected:
  void SetUp() override {
    std::wstring folder(MAX_PATH, L'\0');
    folder.resize(GetModuleFileNameW(nullptr, folder.data(), MAX_PATH));
    folder.resize(folder.find_last_of(L'\\') + 1);
    path_ = folder + L"Unload" + std::to_wstring(GetCurrentProcessId()) + L".dll";
    ASSERT_TRUE(CopyFileW((folder + L"QZBase.dll").c_str(), path_.c_str(), FALSE));
  }
  void TearDown() override { EXPECT_TRUE(DeleteFileW(path_.c_str())); }

  HMODULE Load() {
    HMODULE module = LoadLibraryW(path_.c_str());
    EXPECT_NE(nullptr, module);
    return module;
  }
  void ExpectUnloaded(HMODULE pModule) {
    EXPECT_EQ(S_OK, Entry<CanUnloadNow>(pModule, "DllCanUnloadNow")());
    EXPECT_TRUE(FreeLibrary(pModule));
    EXPECT_EQ(nullptr, GetModuleHandleW(path_.c_str()));
  }

  template <class Interface>
  static ComRef<Interface> Make(HMODULE pModule, REFCLSID pClass) {
    ComRef<IClassFactory> factory;
    const auto getClassObject = Entry<GetClassObject>(pModule, "DllGetClassObject");
    EXPECT_EQ(S_OK, getClassObject(pClass, IID_IClassFactory, factory.PutVoid()));
    ComRef<Interface> result;
    EXPECT_EQ(S_OK, factory->CreateInstance(nullptr, __uuidof(Interface), result.PutVoid()));
    return result;
  }

  // Objects, an error with its texts, state of the thread, the type library.
  static void Use(HMODULE pModule) {
    const auto vector = Make<_CDblVector>(pModule, __uuidof(CDblVector));
    const auto errors = Make<_GCError>(pModule, __uuidof(GCError));
    double value = 0;
    EXPECT_EQ(ErrorResult(9), vector->get_Value(99, &value));
    const ThreadError taken;
    TErrDesc record{};
    EXPECT_EQ(S_OK, errors->get_EDesc(2, &record));
    Taken(record.ID);
    Taken(record.Module);
    Taken(record.Msg);
    Answer answer;
    CallByName(answer, errors.Get(), L"EDesc", DISPATCH_PROPERTYGET, {Long(1)});
    EXPECT_EQ(VT_RECORD, answer.value.value.vt);
  }

  std::wstring path_;
};

std::size_t BytesIn(HANDLE pHeap) {
  std::size_t bytes = 0;
  PROCESS_HEAP_ENTRY entry{};
  HeapLock(pHeap);
  while (HeapWalk(pHeap, &entry))
    if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) bytes += entry.cbData;
  HeapUnlock(pHeap);
  return bytes;
}

std::ptrdiff_t BytesInUse() {
  const HANDLE ours = GetProcessHeap();
  const auto runtime = reinterpret_cast<HANDLE>(_get_heap_handle());
  return static_cast<std::ptrdiff_t>(BytesIn(ours) + (runtime != ours ? BytesIn(runtime) : 0));
}

DWORD HandlesInUse() {
  DWORD count = 0;
  GetProcessHandleCount(GetCurrentProcess(), &count);
  return count;
}

TEST_F(Unload, ObjectsAndLocksKeepTheDll) {
  HMODULE module = Load();
  const auto canUnloadNow = Entry<CanUnloadNow>(module, "DllCanUnloadNow");
  EXPECT_EQ(S_OK, canUnloadNow());
  {
    const auto vector = Make<_CDblVector>(module, __uuidof(CDblVector));
    EXPECT_EQ(S_FALSE, canUnloadNow());
    ComRef<_CDblVector> copy;
    EXPECT_EQ(S_OK, vector->GetCopy(copy.Put()));
  }
  EXPECT_EQ(S_OK, canUnloadNow());
  {
    ComRef<IClassFactory> factory;
    Entry<GetClassObject>(module, "DllGetClassObject")(__uuidof(CBuffer), IID_IClassFactory, factory.PutVoid());
    EXPECT_EQ(S_OK, factory->LockServer(TRUE));
    EXPECT_EQ(S_FALSE, canUnloadNow());
    EXPECT_EQ(S_OK, factory->LockServer(FALSE));
  }
  void* none = this;
  const auto getClassObject = Entry<GetClassObject>(module, "DllGetClassObject");
  EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE, getClassObject(IID_IUnknown, IID_IClassFactory, &none));
  EXPECT_EQ(nullptr, none);
  EXPECT_EQ(E_POINTER, getClassObject(__uuidof(CBuffer), IID_IClassFactory, nullptr));
  ExpectUnloaded(module);
}

enum class WorkerLives { NotAtAll, BeforeUnload, BeyondUnload };

class UnloadRounds : public Unload, public testing::WithParamInterface<WorkerLives> {
 protected:
  void Round() {
    HMODULE module = Load();
    Use(module);
    HANDLE unloaded = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE used = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread worker;
    if (GetParam() != WorkerLives::NotAtAll) {
      worker = std::thread([=] {
        {
          const Apartment apartment;
          Use(module);
        }
        SetEvent(used);
        if (GetParam() == WorkerLives::BeyondUnload) WaitForSingleObject(unloaded, 30000);
      });
      WaitForSingleObject(used, 30000);
    }
    if (GetParam() == WorkerLives::BeforeUnload) worker.join();
    ExpectUnloaded(module);
    SetEvent(unloaded);
    if (worker.joinable()) worker.join();
    CloseHandle(used);
    CloseHandle(unloaded);
  }
};

// What the compiler's runtime keeps in each load, and of each thread that lives on: its locks and its place for an
// exception. A registry of errors that is left behind takes more.
constexpr std::ptrdiff_t kBytesOfCompilerRuntime = 2600;

TEST_P(UnloadRounds, LeaveNothingBehind) {
  constexpr int kRounds = 100;
  for (int i = 0; i < 20; ++i) Round();
  const std::ptrdiff_t bytes = BytesInUse();
  const DWORD handles = HandlesInUse();
  for (int i = 0; i < kRounds; ++i) Round();
  const std::ptrdiff_t grownBy = BytesInUse() - bytes;
  RecordProperty("BytesARound", static_cast<int>(grownBy / kRounds));
  EXPECT_LT(grownBy, kBytesOfCompilerRuntime * kRounds);
  EXPECT_LE(HandlesInUse(), handles + 2);
}

INSTANTIATE_TEST_SUITE_P(Workers, UnloadRounds,
                         testing::Values(WorkerLives::NotAtAll, WorkerLives::BeforeUnload, WorkerLives::BeyondUnload));

TEST_F(Unload, CallsLeaveNothingBehind) {
  HMODULE module = Load();
  for (int i = 0; i < 50; ++i) Use(module);
  const std::ptrdiff_t bytes = BytesInUse();
  for (int i = 0; i < 500; ++i) Use(module);
  EXPECT_LT(BytesInUse() - bytes, 500);
  ExpectUnloaded(module);
}

// The state of a thread goes with it, while the DLL stays.
TEST_F(Unload, ThreadsLeaveNothingBehind) {
  constexpr int kThreads = 100;
  HMODULE module = Load();
  const auto runThreads = [module](int pCount) {
    for (int i = 0; i < pCount; ++i) {
      std::thread([module] {
        const Apartment apartment;
        Use(module);
      }).join();
    }
  };
  runThreads(20);
  const std::ptrdiff_t bytes = BytesInUse();
  runThreads(kThreads);
  const std::ptrdiff_t grownBy = BytesInUse() - bytes;
  RecordProperty("BytesAThread", static_cast<int>(grownBy / kThreads));
  EXPECT_LT(grownBy, 100 * kThreads);
  ExpectUnloaded(module);
}

}  // namespace
}  // namespace qzbase::tests
