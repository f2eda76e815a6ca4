// Files and folders by name: finding, deleting, making, removing.
//
// Names are those of Windows: "\" between folders, a drive letter and ":" in front. Elsewhere "\" and "/" are the same,
// the drive is passed over, and whether case counts is the file system's business. Where wildcards are allowed they
// stand behind the last separator: "*" for any run of characters, "?" for one; ".*" at the end also takes a name
// without an extension.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qzbase::os {

struct FileEntry {
  std::u16string name;  // without its folder
  bool isFolder = false;
  bool isLink = false;  // a folder or file that stands elsewhere; the rest is told of that one, if it is there
  double modified = 0;  // days since 1899-12-30, in local time as it was on that day, whole seconds
};

// What the system finds, in the order in which it does; nothing where it fails. With wildcards "." and ".." are found
// where the system has them. The root of a drive is never found, nor is anything by a name that ends with a separator.
std::vector<FileEntry> FindEntries(std::u16string_view pName);

// Deletes files, not folders. What cannot be deleted stays.
void RemoveFiles(std::u16string_view pName);

enum class FileResult : std::uint8_t { Done, PathNotFound, NoAccess, DiskFull, DeviceFailed };

FileResult MakeFolder(std::u16string_view pFolder);    // the one above it must be there
FileResult RemoveFolder(std::u16string_view pFolder);  // it must be empty

// Makes the folder the process's current one. With a drive in front, that one becomes current first, and stays so when
// the folder cannot.
void ChangeFolder(std::u16string_view pFolder);

// Whether the system takes the text for the name of a file, with or without a path: it does not for an empty one, for
// one that ends with a separator or ":", and for characters that no name may have ("*", "[", "]" and more).
bool IsFileTitle(std::u16string_view pName);

}  // namespace qzbase::os
