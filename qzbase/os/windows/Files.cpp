// Implementation notes. File titles are the common dialogs' business, whose library brings half of the user interface
// with it: it is loaded when it is asked, and not with every program.
#include "qzbase/os/Files.h"

#include <limits>
#include <memory>
#include <type_traits>

#include <windows.h>

#include "qzbase/os/windows/WideText.h"

namespace qzbase::os {
namespace {

struct CloseSearch {
  void operator()(HANDLE pSearch) const noexcept { FindClose(pSearch); }
};
using SearchHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseSearch>;

struct CloseFile {
  void operator()(HANDLE pFile) const noexcept { CloseHandle(pFile); }
};
using FileHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseFile>;

struct FreeModule {
  void operator()(HMODULE pModule) const noexcept { FreeLibrary(pModule); }
};
using ModuleHandle = std::unique_ptr<std::remove_pointer_t<HMODULE>, FreeModule>;

ClockTime LocalTimeOf(const FILETIME& pTime) {
  SYSTEMTIME universal{};
  SYSTEMTIME local{};
  if (!FileTimeToSystemTime(&pTime, &universal) || !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
    return {};
  return {local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
}

FileEntry EntryOf(const WIN32_FIND_DATAW& pData) {
  const std::wstring_view name = pData.cFileName;
  return {std::u16string(name.begin(), name.end()), (pData.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
          LocalTimeOf(pData.ftLastWriteTime)};
}

FileResult ResultOf(BOOL pSucceeded) noexcept {
  if (pSucceeded) return FileResult::Done;
  switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
      return FileResult::PathNotFound;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return FileResult::DiskFull;
    case ERROR_NOT_READY:
    case ERROR_GEN_FAILURE:
    case ERROR_IO_DEVICE:
    case ERROR_CRC:
      return FileResult::DeviceFailed;
    default:
      return FileResult::NoAccess;
  }
}

}  // namespace

std::vector<FileEntry> FindEntries(std::u16string_view pName) {
  std::vector<FileEntry> entries;
  WIN32_FIND_DATAW data{};
  const HANDLE first = FindFirstFileW(Wide(pName).c_str(), &data);
  if (first == INVALID_HANDLE_VALUE) return entries;
  const SearchHandle search(first);
  do {
    entries.push_back(EntryOf(data));
  } while (FindNextFileW(search.get(), &data));
  return entries;
}

std::optional<FolderIdentity> IdentityOf(std::u16string_view pFolder) {
  const HANDLE opened =
      CreateFileW(Wide(pFolder).c_str(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return std::nullopt;
  const FileHandle folder(opened);
  BY_HANDLE_FILE_INFORMATION told{};
  if (!GetFileInformationByHandle(folder.get(), &told) || (told.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
    return std::nullopt;
  return FolderIdentity{told.dwVolumeSerialNumber, (std::uint64_t{told.nFileIndexHigh} << 32) | told.nFileIndexLow};
}

void RemoveFiles(std::u16string_view pName) {
  const std::u16string_view folder = pName.substr(0, pName.find_last_of(u"\\/:") + 1);
  for (const FileEntry& entry : FindEntries(pName))
    if (!entry.isFolder) DeleteFileW((Wide(folder) + Wide(entry.name)).c_str());
}

FileResult MakeFolder(std::u16string_view pFolder) {
  return ResultOf(CreateDirectoryW(Wide(pFolder).c_str(), nullptr));
}

FileResult RemoveFolder(std::u16string_view pFolder) {
  return ResultOf(RemoveDirectoryW(Wide(pFolder).c_str()));
}

void ChangeFolder(std::u16string_view pFolder) {
  const std::wstring folder = Wide(pFolder);
  if (folder.size() > 1 && folder[1] == L':') SetCurrentDirectoryW(folder.substr(0, 2).c_str());
  SetCurrentDirectoryW(folder.c_str());
}

// The service's buffer holds a text of the name's length and the zero behind it.
bool IsFileTitle(std::u16string_view pName) {
  using GetFileTitleFunction = short(WINAPI*)(LPCWSTR, LPWSTR, WORD);
  if (pName.size() >= std::numeric_limits<WORD>::max()) return false;
  const ModuleHandle dialogs(LoadLibraryExW(L"comdlg32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
  if (!dialogs) return false;
  const auto getFileTitle =
      reinterpret_cast<GetFileTitleFunction>(reinterpret_cast<void*>(GetProcAddress(dialogs.get(), "GetFileTitleW")));
  std::wstring title(pName.size() + 1, L'\0');
  return getFileTitle != nullptr &&
         getFileTitle(Wide(pName).c_str(), title.data(), static_cast<WORD>(title.size())) == 0;
}

}  // namespace qzbase::os
