// Names of files, and small services of the file system.
//
// A name is a path (up to and including the last "\"), a root, perhaps an index ("#" and digits), perhaps an extension
// (from the last "." behind the path on):
//
//   C:\data\run#07.dat      path C:\data\   root run   index 07   extension .dat
//
//   GetExtn(u"C:\\a.b\\file")              ""
//   GetFileNameIndex(u"run#0012.dat")      "0012"
//   IndexedFileName(u"C:\\m\\run.dat", 3)  "C:\m\run#03.dat"
//   PathToDir(u"C:\\data\\")               "C:\data", and "C:" is "C:\"
//
// Names have "\" on every system. Where the system itself has "/", calls into it take both and pass over the drive, and
// a name that is listed leads back to its file even where it is no text (os/Files.h).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CStrVector.h"

namespace qzbase::ModFileUtil {

// ---- Texts; nothing is looked up.

std::u16string_view GetExtn(std::u16string_view pName);    // with its "."
std::u16string_view GetPath(std::u16string_view pName);    // with its "\"
std::u16string_view StripExtn(std::u16string_view pName);  // without what `GetExtn` gives
std::u16string_view StripPath(std::u16string_view pName);  // without what `GetPath` gives

// The digits behind the "#"; none for "run#.dat", and none without a "#" before the digits.
std::u16string_view GetFileNameIndex(std::u16string_view pName);

// Drops as many characters from the end of the whole text as "#" and the index have, and so wants a name without an
// extension: "run#07" gives "run", but "run#07.dat" gives "run#07.".
std::u16string_view StripFileNameIndex(std::u16string_view pName);

// Without path, extension and index.
std::u16string_view GetFileNameRoot(std::u16string_view pName);

// The name with an index of at least two digits. An index below 1 stands for the one that the name has, 1 where that is
// none above 0. All digits of an index are kept, however many they are.
std::u16string IndexedFileName(std::u16string_view pName, std::int32_t pIndex);

// Without a "\" at the end, unless a drive's ":" stands before it.
std::u16string PathToDir(std::u16string_view pPath);

// ---- The file system. Nothing here raises, `GetDirContents` apart.

void DeleteFile(std::u16string_view pName);       // wildcards delete all files that fit
bool FileExists(std::u16string_view pName);       // not for folders; with wildcards, the first entry that fits counts
bool PathExists(std::u16string_view pPath);       // for folders, in the same way; never for the root of a drive
bool FileNameValid(std::u16string_view pName);    // os::IsFileTitle
void ChangeDir(std::u16string_view pDirectory);   // and the drive, where one is named
std::int32_t MakeDir(std::u16string_view pPath);  // 0, also when it is there, or the number of a runtime error:
std::int32_t DelDir(std::u16string_view pPath);   // 75, 76, 57 or 61; 0 too when there is nothing to remove

// Appends the files of a folder, each with the folder's name in front, and the dates of their last changes, in the
// order in which the system finds them; with `pRecursive` the folders' own where they are met. Links to folders are
// entered, but never into a folder that is being listed already: what leads back ends there. A folder that cannot be
// read has no files.
//
// The pattern (runtime/WildcardPattern.h; empty: every file) is held against as many characters of a name's end as the
// pattern has: "*.DAT" takes what ends so, and "RUN?.DAT" takes "overrun1.dat" too. Raises error 93 for a pattern that
// is none, and what the vectors raise.
void GetDirContents(std::u16string_view pRootDir, std::u16string_view pPattern, bool pRecursive, CStrVector& pNames,
                    CDblVector& pDates);

}  // namespace qzbase::ModFileUtil
