// The file system of ModFileUtil.h.
#include "qzbase/platform/ModFileUtil.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "qzbase/os/Files.h"
#include "qzbase/platform/TimeStamps.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/WildcardPattern.h"

namespace qzbase::ModFileUtil {
namespace {

using os::FileEntry;
using os::FileResult;
using runtime::RuntimeError;

// Whether the search finds anything, and a folder or file first.
bool FindsFirst(std::u16string_view pName, bool pFolder) {
  const std::vector<FileEntry> entries = os::FindEntries(pName);
  return !entries.empty() && entries.front().isFolder == pFolder;
}

RuntimeError ErrorOf(FileResult pResult) {
  switch (pResult) {
    case FileResult::PathNotFound:
      return RuntimeError::PathNotFound;
    case FileResult::DiskFull:
      return RuntimeError::DiskFull;
    case FileResult::DeviceFailed:
      return RuntimeError::DeviceIoError;
    default:
      return RuntimeError::PathFileAccess;
  }
}

std::int32_t NumberOf(FileResult pResult) {
  return pResult == FileResult::Done ? 0 : static_cast<std::int32_t>(ErrorOf(pResult));
}

bool IsTaken(std::u16string_view pName, std::u16string_view pPattern) {
  const std::size_t length = std::min(pName.size(), pPattern.size());
  return pPattern.empty() || runtime::FitsWildcards(pName.substr(pName.size() - length), pPattern);
}

// A list of files that grows from folder to folder.
class Listing {
 public:
  Listing(std::u16string_view pPattern, bool pRecursive, CStrVector& pNames, CDblVector& pDates)
      : pattern_(pPattern), recursive_(pRecursive), names_(pNames), dates_(pDates) {}

  // The folder's name ends with a separator. A folder that holds itself through a link is not listed again.
  void Add(const std::u16string& pFolder) {
    const std::optional<os::FolderIdentity> identity = os::IdentityOf(pFolder);
    if (!identity || std::find(open_.begin(), open_.end(), *identity) != open_.end()) return;
    open_.push_back(*identity);
    for (const FileEntry& entry : os::FindEntries(pFolder + u"*.*"))
      entry.isFolder ? Enter(pFolder, entry) : Take(pFolder, entry);
    open_.pop_back();
  }

 private:
  void Enter(const std::u16string& pFolder, const FileEntry& pEntry) {
    if (recursive_ && pEntry.name != u"." && pEntry.name != u"..") Add(pFolder + pEntry.name + u'\\');
  }

  void Take(const std::u16string& pFolder, const FileEntry& pEntry) {
    if (!IsTaken(pEntry.name, pattern_)) return;
    names_.AddValue(pFolder + pEntry.name);
    dates_.AddValue(ModBase::DateOf(pEntry.modified).days);
  }

  std::u16string_view pattern_;
  bool recursive_;
  CStrVector& names_;
  CDblVector& dates_;
  std::vector<os::FolderIdentity> open_;  // the folders above and the one that is listed
};

}  // namespace

void DeleteFile(std::u16string_view pName) {
  os::RemoveFiles(pName);
}

bool FileExists(std::u16string_view pName) {
  return FindsFirst(pName, false);
}

bool PathExists(std::u16string_view pPath) {
  return FindsFirst(PathToDir(pPath), true);
}

bool FileNameValid(std::u16string_view pName) {
  return os::IsFileTitle(pName);
}

void ChangeDir(std::u16string_view pDirectory) {
  os::ChangeFolder(pDirectory);
}

std::int32_t MakeDir(std::u16string_view pPath) {
  const std::u16string folder = PathToDir(pPath);
  return PathExists(folder) ? 0 : NumberOf(os::MakeFolder(folder));
}

std::int32_t DelDir(std::u16string_view pPath) {
  const std::u16string folder = PathToDir(pPath);
  return PathExists(folder) ? NumberOf(os::RemoveFolder(folder)) : 0;
}

void GetDirContents(std::u16string_view pRootDir, std::u16string_view pPattern, bool pRecursive, CStrVector& pNames,
                    CDblVector& pDates) {
  // As far as the system would read it: what stands behind a zero would be lost, the pattern too.
  std::u16string folder(pRootDir.substr(0, pRootDir.find(u'\0')));
  if (!folder.ends_with(u'\\')) folder += u'\\';
  Listing(pPattern, pRecursive, pNames, pDates).Add(folder);
}

}  // namespace qzbase::ModFileUtil
