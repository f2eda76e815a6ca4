// The public face of names of files and small services of the file system. See ModFileUtil.h for what the members do
// and raise; an object of this class has no state of its own.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class GCFileUtil : public runtime::Object {
 public:
  static void DeleteFile(std::u16string_view FileName);
  static bool FileExists(std::u16string_view FName);
  static bool PathExists(std::u16string_view Path);
  static bool FileNameValid(std::u16string_view FName);

  static std::u16string GetExtn(std::u16string_view FName);
  static std::u16string GetFileNameIndex(std::u16string_view PName);
  static std::u16string GetFileNameRoot(std::u16string_view PName);
  static std::u16string GetPath(std::u16string_view FName);
  static std::u16string IndexedFileName(std::u16string_view FName, std::int32_t Index);
  static std::u16string PathToDir(std::u16string_view Path);
  static std::u16string StripExtn(std::u16string_view PName);
  static std::u16string StripFileNameIndex(std::u16string_view PName);
  static std::u16string StripPath(std::u16string_view FName);

  static void ChangeDir(std::u16string_view Directory);
  static void GetDirContents(std::u16string_view RootDir, std::u16string_view Pattern, bool Recursiv, CStrVector& FName,
                             CDblVector& FDate);

  // 0 or the number of a runtime error.
  static std::int32_t MakeDir(std::u16string_view Path);
  static std::int32_t DelDir(std::u16string_view Path);
};

}  // namespace qzbase
