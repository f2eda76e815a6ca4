#include "qzbase/os/Files.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "qzbase/os/Wildcards.h"
#include "qzbase/os/posix/FileName.h"

namespace qzbase::os {
namespace {

struct CloseFolder {
  void operator()(DIR* pFolder) const noexcept { closedir(pFolder); }
};
using FolderHandle = std::unique_ptr<DIR, CloseFolder>;

// A name in two: the folder, which may be missing, and what is sought in it.
struct SplitName {
  explicit SplitName(std::u16string_view pName) : title(NativeName(pName)) {
    const std::size_t end = title.rfind('/') + 1;
    folder = end == 0 ? "./" : title.substr(0, end);
    title.erase(0, end);
  }
  bool HasWildcards() const { return title.find_first_of("*?") != std::string::npos; }

  std::string title;  // empty for the root
  std::string folder;
};

bool FitsFileWildcards(std::u16string_view pName, std::u16string_view pPattern) {
  const auto isStar = [](char16_t pPiece) { return pPiece == u'*'; };
  const auto fits = [](char16_t pPiece, char16_t pUnit) { return pPiece == u'?' || pPiece == pUnit; };
  if (FitsWildcards(pName, pPattern, isStar, fits)) return true;
  return pPattern.ends_with(u".*") && pName.find(u'.') == std::u16string_view::npos &&
         FitsWildcards(pName, pPattern.substr(0, pPattern.size() - 2), isStar, fits);
}

ClockTime LocalTimeOf(std::time_t pTime) {
  std::tm local{};
  if (localtime_r(&pTime, &local) == nullptr) return {};
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

// What is told of an entry besides its name; false where it is not there. A link that leads nowhere is one itself.
bool ReadEntry(int pFolder, const std::string& pPath, FileEntry& pEntry) {
  struct stat status {};
  if (fstatat(pFolder, pPath.c_str(), &status, 0) != 0 &&
      fstatat(pFolder, pPath.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
    return false;
  pEntry.isFolder = S_ISDIR(status.st_mode);
  pEntry.modified = LocalTimeOf(status.st_mtime);
  return true;
}

// Calls `pVisit` with all that fits: an open folder, the path from there in the system's bytes, and the entry.
template <class Visit>
void VisitEntries(std::u16string_view pName, Visit pVisit) {
  const SplitName name(pName);
  if (name.title.empty()) return;
  const std::u16string title = TextOfName(name.title);
  const auto isSought = [&](const FileEntry& pEntry) { return pEntry.isFolder || !EndsWithSeparator(pName); };
  FileEntry entry;
  entry.name = title;
  if (!name.HasWildcards()) {
    const std::string path = name.folder + name.title;
    if (ReadEntry(AT_FDCWD, path, entry) && isSought(entry)) pVisit(AT_FDCWD, path, entry);
    return;
  }
  const FolderHandle folder(opendir(name.folder.c_str()));
  while (const dirent* found = folder ? readdir(folder.get()) : nullptr) {
    entry.name = TextOfName(found->d_name);
    if (FitsFileWildcards(entry.name, title) && ReadEntry(dirfd(folder.get()), found->d_name, entry) && isSought(entry))
      pVisit(dirfd(folder.get()), found->d_name, entry);
  }
}

FileResult ResultOf(int pReturned) noexcept {
  if (pReturned == 0) return FileResult::Done;
  switch (errno) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
      return FileResult::PathNotFound;
    case ENOSPC:
    case EDQUOT:
      return FileResult::DiskFull;
    case EIO:
      return FileResult::DeviceFailed;
    default:
      return FileResult::NoAccess;
  }
}

}  // namespace

std::vector<FileEntry> FindEntries(std::u16string_view pName) {
  std::vector<FileEntry> entries;
  VisitEntries(pName, [&](int, const std::string&, const FileEntry& pEntry) { entries.push_back(pEntry); });
  std::stable_partition(entries.begin(), entries.end(),
                        [](const FileEntry& pEntry) { return pEntry.name == u"." || pEntry.name == u".."; });
  return entries;
}

std::optional<FolderIdentity> IdentityOf(std::u16string_view pFolder) {
  struct stat status {};
  if (stat(NativeName(pFolder).c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return std::nullopt;
  return FolderIdentity{status.st_dev, status.st_ino};
}

void RemoveFiles(std::u16string_view pName) {
  VisitEntries(pName, [](int pFolder, const std::string& pPath, const FileEntry& pEntry) {
    if (!pEntry.isFolder) unlinkat(pFolder, pPath.c_str(), 0);
  });
}

FileResult MakeFolder(std::u16string_view pFolder) {
  return ResultOf(mkdir(NativeName(pFolder).c_str(), S_IRWXU | S_IRWXG | S_IRWXO));
}

FileResult RemoveFolder(std::u16string_view pFolder) {
  const std::string name = NativeName(pFolder);
  struct stat status {};
  // To the system a link is something else that stands in the way of the folder.
  if (lstat(name.c_str(), &status) == 0 && S_ISLNK(status.st_mode)) return FileResult::NoAccess;
  return ResultOf(rmdir(name.c_str()));
}

void ChangeFolder(std::u16string_view pFolder) {
  static_cast<void>(ResultOf(chdir(NativeName(pFolder).c_str())));
}

// The characters are those that the service of Windows refuses.
bool IsFileTitle(std::u16string_view pName) {
  if (pName.empty() || std::u16string_view(u"\\/:").find(pName.back()) != std::u16string_view::npos) return false;
  return std::none_of(pName.begin(), pName.end(), [](char16_t pUnit) {
    return pUnit < u' ' || std::u16string_view(u"*?[]\"<>|").find(pUnit) != std::u16string_view::npos;
  });
}

}  // namespace qzbase::os
