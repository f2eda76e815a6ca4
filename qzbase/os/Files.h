// Files and folders by name: finding, deleting, making, removing.
//
// Names are those of Windows: "\" between folders, a drive letter and ":" in front. Elsewhere "\" and "/" are the same,
// the drive is passed over, and whether case counts is the file system's business. Where wildcards are allowed they
// stand behind the last separator: "*" for any run of characters, "?" for one; ".*" at the end also takes a name
// without an extension. A name that ends with a separator is that of a folder, found elsewhere than on Windows alone.
//
// Where names are bytes, those that are no text and a "\" in a name have characters of their own (os/posix/FileName.h,
// whose `NativeName` gives the bytes to who opens a file): every name that is found here is one by which its entry is
// found, entered and removed. Only "*" and "?", which other systems allow in names, stay wildcards.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "qzbase/os/Clock.h"

namespace qzbase::os {

struct FileEntry {
  std::u16string name;  // without its folder
  bool isFolder = false;
  ClockTime modified;  // in local time as it was on that day; year 0 where the system cannot say it
};

// What the system finds, in the order in which it does; nothing where it fails. With wildcards "." and ".." are found,
// first of all, where the system has them. Of a link is told what it leads to, if that is there. The root of a drive is
// never found.
std::vector<FileEntry> FindEntries(std::u16string_view pName);

// What a folder is, by whatever name and through whatever links it is reached.
struct FolderIdentity {
  std::uint64_t device = 0;
  std::uint64_t number = 0;  // on its device
  bool operator==(const FolderIdentity&) const = default;
};

// Nothing for what is no folder, or not there.
std::optional<FolderIdentity> IdentityOf(std::u16string_view pFolder);

// Deletes files, not folders. What cannot be deleted stays.
void RemoveFiles(std::u16string_view pName);

enum class FileResult : std::uint8_t { Done, PathNotFound, NoAccess, DiskFull, DeviceFailed };

FileResult MakeFolder(std::u16string_view pFolder);    // the one above it must be there
FileResult RemoveFolder(std::u16string_view pFolder);  // it must be empty, and on Linux no link

// Makes the folder the process's current one. With a drive in front, that one becomes current first, and stays so when
// the folder cannot.
void ChangeFolder(std::u16string_view pFolder);

// Whether the system takes the text for the name of a file, with or without a path: it does not for an empty one, for
// one that ends with a separator or ":", and for characters that no name may have ("*", "[", "]" and more).
bool IsFileTitle(std::u16string_view pName);

}  // namespace qzbase::os
