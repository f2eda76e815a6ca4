#include "qzbase/os/posix/RegistryFolder.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <string_view>
#include <vector>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qzbase::os {
namespace {

// By the number of the root. Those without a name are kept in memory by the platform, and not at all here.
constexpr std::array<std::string_view, 7> kRootNames = {
    "HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE", "HKEY_USERS", "", "HKEY_CURRENT_CONFIG", ""};
constexpr std::size_t kCurrentUser = 1;

constexpr std::string_view kFolderName = "/qzbase";

// A variable counts when it names a folder from the root of the file system on.
std::string FolderInVariable(const char* pName) {
  const char* value = std::getenv(pName);
  return value != nullptr && *value == '/' ? value : "";
}

std::string HomeFolder() {
  if (std::string home = FolderInVariable("HOME"); !home.empty()) return home;
  std::vector<char> memory(16384);
  passwd entry{};
  passwd* found = nullptr;
  const bool known = getpwuid_r(getuid(), &entry, memory.data(), memory.size(), &found) == 0 && found != nullptr;
  return known && entry.pw_dir != nullptr ? entry.pw_dir : "";
}

std::string UserFolder() {
  if (const std::string folder = FolderInVariable("XDG_CONFIG_HOME"); !folder.empty())
    return folder + kFolderName.data();
  const std::string home = HomeFolder();
  return home.empty() ? "" : home + "/.config" + kFolderName.data();
}

std::string MachineFolder() {
  if (std::string folder = FolderInVariable("QZBASE_STATE_FOLDER"); !folder.empty()) return folder;
  return std::string("/var/lib") + kFolderName.data();
}

}  // namespace

RegistryResult FindRegistryFile(std::int32_t pRoot, RegistryFile& pFile) {
  const auto root = static_cast<std::size_t>(pRoot);
  if (root >= kRootNames.size() || kRootNames[root].empty()) return RegistryResult::InvalidHandle;
  pFile.isUsers = root == kCurrentUser;
  pFile.folder = pFile.isUsers ? UserFolder() : MachineFolder();
  if (pFile.folder.empty()) return RegistryResult::PathNotFound;
  pFile.path = pFile.folder + '/' + std::string(kRootNames[root]) + ".sqlite";
  return RegistryResult::Success;
}

RegistryResult MakeRegistryFolder(const RegistryFile& pFile) {
  const mode_t mode = pFile.isUsers ? S_IRWXU : S_IRWXU | S_IRGRP | S_IXGRP | S_IROTH | S_IXOTH;
  for (std::size_t end = 0; end != std::string::npos;) {
    end = pFile.folder.find('/', end + 1);
    const std::string folder = pFile.folder.substr(0, end);
    struct stat status {};
    if (stat(folder.c_str(), &status) == 0) continue;  // also where making one would not be allowed
    if (mkdir(folder.c_str(), mode) != 0 && errno != EEXIST) return ResultOfErrno(errno);
  }
  return RegistryResult::Success;
}

RegistryResult ResultOfErrno(int pErrno) noexcept {
  switch (pErrno) {
    case ENOENT:
    case ENOTDIR:
      return RegistryResult::PathNotFound;
    case ENOSPC:
    case EDQUOT:
      return RegistryResult::DiskFull;
    case EIO:
      return RegistryResult::IoFailed;
    default:
      return RegistryResult::AccessDenied;
  }
}

}  // namespace qzbase::os
