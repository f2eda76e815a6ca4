// The files of the store: where they are, and what they are after a kill, damage or a missing right.
#include <algorithm>
#include <atomic>
#include <csignal>
#include <fstream>
#include <iterator>
#include <new>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "qzbase/persist/GCRegistry.h"
#include "qzbase/runtime/Convert.h"
#include "tests/persist/ScratchStore.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

namespace fs = std::filesystem;

// The platform's results.
constexpr std::int32_t kNoFile = 2, kAccessDenied = 5, kNoRoot = 6, kBadPathName = 161, kCorrupt = 1015;

std::int32_t Save(std::int32_t pRoot, std::u16string_view pKey, std::int32_t pValue) {
  return GCRegistry::REGSaveValue(TRegKey(pRoot), u"Software\\App", pKey, pValue);
}
// 0 where there is none.
std::int32_t Get(std::int32_t pRoot, std::u16string_view pKey) {
  return runtime::ToLong(GCRegistry::REGGetValue(TRegKey(pRoot), u"software\\\\app\\", pKey));
}
std::int32_t Delete(std::int32_t pRoot) {
  return ErrorOf([&] { GCRegistry::REGDeleteValue(TRegKey(pRoot), u"Software\\App", u"Key"); });
}

// A buffer of several pages that says its number throughout.
Ref<CBuffer> Filled(std::int32_t pNumber) {
  auto buffer = New<CBuffer>();
  buffer->AddLong(pNumber);
  if (pNumber > 0) buffer->AddData({0, std::vector<std::uint8_t>(10'000, static_cast<std::uint8_t>(pNumber))});
  return buffer;
}

class RegistryFile : public testing::Test {
 protected:
  const ScratchStore store_;
  const fs::path userFile_ = store_.Folder() / "config/qzbase/HKEY_CURRENT_USER.sqlite";
  const fs::path machineFile_ = store_.Folder() / "state/HKEY_LOCAL_MACHINE.sqlite";
};

TEST_F(RegistryFile, EveryRootHasItsOwn) {
  EXPECT_EQ(Get(HKEY_CURRENT_USER, u"Key"), 0);
  EXPECT_EQ(Delete(HKEY_CURRENT_USER), kNoFile);
  EXPECT_TRUE(fs::is_empty(store_.Folder())) << "only writing makes files";
  const std::int32_t results[] = {0, 0, 0, 0, kNoRoot, 0, kNoRoot, kNoRoot};
  for (std::int32_t root = 0; root < 8; ++root) EXPECT_EQ(Save(root, u"\u017E", root + 1), results[root]) << root;
  for (std::int32_t root = 0; root < 8; ++root)
    EXPECT_EQ(Get(root, u"\u017D"), results[root] == 0 ? root + 1 : 0) << root;
  EXPECT_EQ(Save(-1, u"Key", 1), kNoRoot);
  EXPECT_EQ(Delete(HKEY_DYN_DATA), kNoRoot);
  EXPECT_TRUE(fs::exists(userFile_) && fs::exists(machineFile_));
  EXPECT_EQ(fs::status(userFile_.parent_path()).permissions(), fs::perms::owner_all);
  EXPECT_EQ(GCRegistry::REGCreateNewSection(HKEY_CURRENT_USER, u"\\App"), kBadPathName);
}

TEST_F(RegistryFile, IsLeftAsItIsWhenDamaged) {
  const auto read = [&] {
    std::ifstream file(userFile_, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  };
  GCRegistry::REGSaveBuffer(HKEY_CURRENT_USER, u"Software\\App", u"Buffer", *Filled(1));
  Save(HKEY_CURRENT_USER, u"Key", 1);
  const std::string whole = read();
  const std::string damaged[] = {"no database", whole.substr(0, whole.size() / 2), "x" + whole,
                                 whole.substr(0, 4096) + std::string(whole.size() - 4096, '\0')};
  for (const std::string& content : damaged) {
    std::ofstream(userFile_, std::ios::binary) << content;
    EXPECT_EQ(Save(HKEY_CURRENT_USER, u"Key", 2), kCorrupt);
    EXPECT_EQ(Delete(HKEY_CURRENT_USER), kCorrupt);
    EXPECT_EQ(Get(HKEY_CURRENT_USER, u"Key"), 0);
    EXPECT_TRUE(read() == content);
  }
  std::ofstream(userFile_, std::ios::binary) << "";  // as a kill can leave it at the very first write
  EXPECT_EQ(Save(HKEY_CURRENT_USER, u"Key", 2), 0);
}

TEST_F(RegistryFile, IsReadWithoutTheRightToWrite) {
  ASSERT_EQ(Save(HKEY_LOCAL_MACHINE, u"Key", 1), 0);
  fs::permissions(machineFile_, fs::perms(0444));
  fs::permissions(machineFile_.parent_path(), fs::perms(0555));
  const uid_t self = geteuid();
  ASSERT_EQ(seteuid(self == 0 ? 65534 : self), 0);  // nobody, where the tests run with all rights
  EXPECT_EQ(Get(HKEY_LOCAL_MACHINE, u"Key"), 1);
  for (const std::int32_t root : {2, 3}) EXPECT_EQ(Save(root, u"Key", 2), kAccessDenied);
  EXPECT_EQ(Delete(HKEY_LOCAL_MACHINE), kAccessDenied);
  ASSERT_EQ(seteuid(self), 0);
  fs::permissions(machineFile_.parent_path(), fs::perms(0755));
}

// A key for each of four numbers in turn.
std::u16string KeyOf(std::int32_t pNumber) {
  return {u'K', static_cast<char16_t>(u'0' + pNumber % 4)};
}
// The number of the buffer that is stored, -1 where it is not whole.
std::int32_t NumberIn(std::u16string_view pKey) {
  const Ref<CBuffer> buffer = GCRegistry::REGGetBuffer(HKEY_CURRENT_USER, u"App", pKey);
  const std::int32_t number = buffer->NextLong();
  return number == 0 || buffer->BinaryEqual(*Filled(number)) ? number : -1;
}

// What the writer tells of itself until it is killed.
struct Progress {
  std::atomic<std::int32_t> written{0};  // the last number whose write has returned
  std::atomic<bool> hasBegun{false};
};

[[noreturn]] void WriteOn(Progress& pProgress) noexcept {
  for (;; ++pProgress.written) {
    pProgress.hasBegun = true;
    const std::int32_t number = pProgress.written + 1;
    GCRegistry::REGSaveBuffer(HKEY_CURRENT_USER, u"App", KeyOf(number), *Filled(number));
  }
}

TEST_F(RegistryFile, LosesAndTearsNothingWhenItsWriterIsKilled) {
  void* shared = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(shared, MAP_FAILED);
  auto& progress = *new (shared) Progress();
  std::uint32_t chance = 1;
  for (int round = 0; round < 200; ++round) {
    progress.hasBegun = false;
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) WriteOn(progress);
    while (!progress.hasBegun) std::this_thread::yield();
    chance = chance * 1'664'525u + 1'013'904'223u;
    usleep(chance >> 21);  // up to 2 ms, in which there are a few writes
    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    const std::int32_t last = progress.written;
    for (std::int32_t number = std::max(last - 2, 1); number <= last; ++number)
      ASSERT_EQ(NumberIn(KeyOf(number)), number) << "round " << round;
    // The write that was going on has happened or has not.
    const std::int32_t next = NumberIn(KeyOf(last + 1));
    ASSERT_TRUE(next == last + 1 || next == std::max(last - 3, 0)) << "round " << round << ": " << next;
  }
  EXPECT_GT(progress.written, 0);
}

TEST_F(RegistryFile, TakesTwoWritersAtOnce) {
  constexpr std::int32_t kWrites = 40;
  const auto keyOf = [](int pWriter, std::int32_t pWrite) {
    return std::u16string{static_cast<char16_t>(u'a' + pWriter), static_cast<char16_t>(u'0' + pWrite)};
  };
  for (const int writer : {0, 1}) {
    if (fork() != 0) continue;
    bool failed = false;
    for (std::int32_t i = 1; i <= kWrites; ++i) failed |= Save(HKEY_CURRENT_USER, keyOf(writer, i), i) != 0;
    _exit(failed ? 1 : 0);
  }
  for (int status = 0; wait(&status) > 0;) EXPECT_EQ(status, 0);
  for (std::int32_t i = 1; i <= kWrites; ++i)
    for (const int writer : {0, 1}) EXPECT_EQ(Get(HKEY_CURRENT_USER, keyOf(writer, i)), i);
}

}  // namespace
}  // namespace qzbase::tests
