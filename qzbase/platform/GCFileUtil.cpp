#include "qzbase/platform/GCFileUtil.h"

#include "qzbase/platform/ModFileUtil.h"

namespace qzbase {

void GCFileUtil::DeleteFile(std::u16string_view FileName) {
  ModFileUtil::DeleteFile(FileName);
}

bool GCFileUtil::FileExists(std::u16string_view FName) {
  return ModFileUtil::FileExists(FName);
}

bool GCFileUtil::PathExists(std::u16string_view Path) {
  return ModFileUtil::PathExists(Path);
}

bool GCFileUtil::FileNameValid(std::u16string_view FName) {
  return ModFileUtil::FileNameValid(FName);
}

std::u16string GCFileUtil::GetExtn(std::u16string_view FName) {
  return std::u16string(ModFileUtil::GetExtn(FName));
}

std::u16string GCFileUtil::GetFileNameIndex(std::u16string_view PName) {
  return std::u16string(ModFileUtil::GetFileNameIndex(PName));
}

std::u16string GCFileUtil::GetFileNameRoot(std::u16string_view PName) {
  return std::u16string(ModFileUtil::GetFileNameRoot(PName));
}

std::u16string GCFileUtil::GetPath(std::u16string_view FName) {
  return std::u16string(ModFileUtil::GetPath(FName));
}

std::u16string GCFileUtil::IndexedFileName(std::u16string_view FName, std::int32_t Index) {
  return ModFileUtil::IndexedFileName(FName, Index);
}

std::u16string GCFileUtil::PathToDir(std::u16string_view Path) {
  return ModFileUtil::PathToDir(Path);
}

std::u16string GCFileUtil::StripExtn(std::u16string_view PName) {
  return std::u16string(ModFileUtil::StripExtn(PName));
}

std::u16string GCFileUtil::StripFileNameIndex(std::u16string_view PName) {
  return std::u16string(ModFileUtil::StripFileNameIndex(PName));
}

std::u16string GCFileUtil::StripPath(std::u16string_view FName) {
  return std::u16string(ModFileUtil::StripPath(FName));
}

void GCFileUtil::ChangeDir(std::u16string_view Directory) {
  ModFileUtil::ChangeDir(Directory);
}

void GCFileUtil::GetDirContents(std::u16string_view RootDir, std::u16string_view Pattern, bool Recursiv,
                                CStrVector& FName, CDblVector& FDate) {
  ModFileUtil::GetDirContents(RootDir, Pattern, Recursiv, FName, FDate);
}

std::int32_t GCFileUtil::MakeDir(std::u16string_view Path) {
  return ModFileUtil::MakeDir(Path);
}

std::int32_t GCFileUtil::DelDir(std::u16string_view Path) {
  return ModFileUtil::DelDir(Path);
}

}  // namespace qzbase
