// The file system of ModFileUtil.h.
#include "qzbase/platform/ModFileUtil.h"

#include <algorithm>
#include <vector>

#include "qzbase/os/Files.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/WildcardPattern.h"

namespace qzbase::ModFileUtil {
namespace {

using os::FileEntry;
using os::FileResult;
using runtime::RuntimeError;

bool Exists(std::u16string_view pName, bool pAsFolder) {
  const std::vector<FileEntry> entries = os::FindEntries(pName);
  return std::any_of(entries.begin(), entries.end(),
                     [&](const FileEntry& entry) { return entry.isFolder == pAsFolder; });
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

// Elsewhere than on Windows a name may have a "\" of its own, and the path through it would lead to another folder,
// even back to the same one.
bool CanBeEntered(std::u16string_view pName) {
  return pName != u"." && pName != u".." && pName.find(u'\\') == std::u16string_view::npos;
}

}  // namespace

void DeleteFile(std::u16string_view pName) {
  os::RemoveFiles(pName);
}

bool FileExists(std::u16string_view pName) {
  return Exists(pName, false);
}

bool PathExists(std::u16string_view pPath) {
  return Exists(PathToDir(pPath), true);
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
  for (const FileEntry& entry : os::FindEntries(folder + u"*.*")) {
    const std::u16string name = folder + entry.name;
    if (!entry.isFolder) {
      if (!IsTaken(entry.name, pPattern)) continue;
      pNames.AddValue(name);
      pDates.AddValue(entry.modified);
    } else if (pRecursive && !entry.isLink && CanBeEntered(entry.name)) {
      GetDirContents(name, pPattern, true, pNames, pDates);
    }
  }
}

}  // namespace qzbase::ModFileUtil
