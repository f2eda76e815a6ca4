#include <algorithm>
#include <chrono>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "qzbase/os/Files.h"
#include "qzbase/platform/GCFileUtil.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TempFolder.h"

namespace qzbase::tests {
namespace {

namespace fs = std::filesystem;
using runtime::RuntimeError;
using Names = std::set<std::string>;

class FileUtil : public testing::Test {
 protected:
  const TempFolder folder_;

 private:
  runtime::ScopedLocale locale_{TestLocale("en-US")};
};

TEST_F(FileUtil, TakesNamesApart) {
  const struct {
    const char16_t *name, *path, *root, *index, *extension, *withoutIndex;
  } rows[] = {
      {u"", u"", u"", u"", u"", u""},
      {u"C:\\data\\run#07.dat", u"C:\\data\\", u"run", u"07", u".dat", u"C:\\data\\run#07."},
      {u"C:\\a.b\\file", u"C:\\a.b\\", u"file", u"", u"", u"C:\\a.b\\file"},
      {u"C:\\a#1\\", u"C:\\a#1\\", u"", u"", u"", u"C:\\a#1\\"},
      {u"file.tar.gz", u"", u"file.tar", u"", u".gz", u"file.tar.gz"},
      {u"run#.dat", u"", u"run#", u"", u".dat", u"run#.dat"},
      {u"run#0012", u"", u"run", u"0012", u"", u"run"},
      {u"#5", u"", u"", u"5", u"", u""},
      {u"0123", u"", u"0123", u"", u"", u"0123"},
      {u"a.b#07.dat", u"", u"a.b#07", u"07", u".dat", u"a.b#07."},  // a second extension for who strips again
      {u"run#1\u00B2", u"", u"run", u"1\u00B2", u"", u"run"},       // sorts among the digits
      {u"a/b.c", u"", u"a/b", u"", u".c", u"a/b.c"},
  };
  for (const auto& [name, path, root, index, extension, withoutIndex] : rows) {
    EXPECT_EQ(GCFileUtil::GetPath(name), path) << ToUtf8(name);
    EXPECT_EQ(GCFileUtil::GetFileNameRoot(name), root) << ToUtf8(name);
    EXPECT_EQ(GCFileUtil::GetFileNameIndex(name), index) << ToUtf8(name);
    EXPECT_EQ(GCFileUtil::GetExtn(name), extension) << ToUtf8(name);
    EXPECT_EQ(GCFileUtil::StripFileNameIndex(name), withoutIndex) << ToUtf8(name);
    EXPECT_EQ(GCFileUtil::StripExtn(name) + extension, name);
    EXPECT_EQ(path + GCFileUtil::StripPath(name), name);
  }
}

TEST_F(FileUtil, PutsNamesTogether) {
  const struct {
    const char16_t* name;
    std::int32_t index;
    const char16_t* expected;
  } rows[] = {
      {u"C:\\m\\run.dat", 3, u"C:\\m\\run#03.dat"},
      {u"C:\\m\\run#12.dat", 0, u"C:\\m\\run#12.dat"},
      {u"C:\\m\\run#12.dat", 5, u"C:\\m\\run#05.dat"},
      {u"run", 123456, u"run#123456"},
      {u"run#000.x", -1, u"run#01.x"},
      {u"run#99999999999", 0, u"run#99999999999"},
      {u"run#0012345678901234567890.x", 0, u"run#12345678901234567890.x"},
      {u"run#1\u00B2", 0, u"run#01"},
  };
  const std::u16string longest = u"run#" + std::u16string(400, u'9');
  EXPECT_EQ(GCFileUtil::IndexedFileName(longest, 0), longest);
  for (const auto& [name, index, expected] : rows) EXPECT_EQ(GCFileUtil::IndexedFileName(name, index), expected);
  const std::pair<const char16_t*, const char16_t*> folders[] = {
      {u"C:\\data\\", u"C:\\data"}, {u"C:", u"C:\\"}, {u"C:\\", u"C:\\"}, {u"a\\\\", u"a\\"}, {u"", u""}};
  for (const auto& [path, folder] : folders) EXPECT_EQ(GCFileUtil::PathToDir(path), folder);
  for (const char16_t* name : {u"run.dat", u"C:\\m\\run#07.dat", u"a b", u"\u00E4"})
    EXPECT_TRUE(GCFileUtil::FileNameValid(name)) << ToUtf8(name);
  for (const char16_t* name : {u"", u"a*b", u"a[", u"a]b", u"C:\\m\\", u"C:", u"a/"})
    EXPECT_FALSE(GCFileUtil::FileNameValid(name)) << ToUtf8(name);
}

TEST_F(FileUtil, FindsFilesAndFolders) {
  folder_.Write(u"sub/run.dat");
  const struct {
    const char16_t* name;
    bool isFile, isFolder;
  } rows[] = {{u"sub", false, true},
              {u"sub\\*.*", false, true},  // "." comes first
              {u"sub\\", false, true},
              {u"sub\\run.dat", true, false},
              {u"sub/run.dat", true, false},
              {u"sub\\?un.*", true, false},
              {u"s*", false, true},
              {u"none", false, false},
              {u"sub\\run.dat\\", false, false},
              {u"none\\run.dat", false, false}};
  for (const auto& [name, isFile, isFolder] : rows) {
    EXPECT_EQ(GCFileUtil::FileExists(folder_.Name(name)), isFile) << ToUtf8(name);
    EXPECT_EQ(GCFileUtil::PathExists(folder_.Name(name)), isFolder) << ToUtf8(name);
  }
  for (const char16_t* name : {u"", u"C:\\", u"C:"}) EXPECT_FALSE(GCFileUtil::PathExists(name));
  const auto identity = [&](const char16_t* pName) { return os::IdentityOf(folder_.Name(pName)); };
  EXPECT_TRUE(identity(u"sub") && identity(u"sub") == identity(u"sub\\..\\sub\\"));
  EXPECT_NE(identity(u"sub"), identity(u""));
  EXPECT_EQ(identity(u"sub\\run.dat"), std::nullopt);
}

TEST_F(FileUtil, MakesEntersAndRemovesFolders) {
  const fs::path before = fs::current_path();
  constexpr std::int32_t kNoPath = NumberOf(RuntimeError::PathNotFound);
  constexpr std::int32_t kNoAccess = NumberOf(RuntimeError::PathFileAccess);
  folder_.Write(u"file");
  const std::pair<const char16_t*, std::int32_t> made[] = {
      {u"a\\b", kNoPath}, {u"a\\", 0}, {u"a", 0}, {u"file", kNoAccess}, {u"a\\b", 0}};
  for (const auto& [name, error] : made) EXPECT_EQ(GCFileUtil::MakeDir(folder_.Name(name)), error) << ToUtf8(name);
  GCFileUtil::ChangeDir(folder_.Name(u"a"));
  GCFileUtil::ChangeDir(u"none");
  EXPECT_TRUE(GCFileUtil::PathExists(u"b"));
  fs::current_path(before);
  const std::pair<const char16_t*, std::int32_t> removed[] = {
      {u"a", kNoAccess}, {u"a\\b\\", 0}, {u"a", 0}, {u"a", 0}, {u"file", 0}};
  for (const auto& [name, error] : removed) EXPECT_EQ(GCFileUtil::DelDir(folder_.Name(name)), error) << ToUtf8(name);
  EXPECT_FALSE(GCFileUtil::PathExists(folder_.Name(u"a")));
  EXPECT_TRUE(GCFileUtil::FileExists(folder_.Name(u"file")));
}

TEST_F(FileUtil, DeletesByNameAndWildcards) {
  for (const char16_t* name : {u"a.dat", u"b.dat", u"c.txt", u"d", u"sub.dat/e.dat"}) folder_.Write(name);
  const std::pair<std::u16string, Names> rows[] = {
      {u"", {"a.dat", "b.dat", "c.txt", "d", "sub.dat"}},
      {folder_.Name(u"sub.dat"), {"a.dat", "b.dat", "c.txt", "d", "sub.dat"}},
      {folder_.Name(u"c.txt"), {"a.dat", "b.dat", "d", "sub.dat"}},
      {folder_.Name(u"?.dat"), {"d", "sub.dat"}},
      {folder_.Name(u"*.*"), {"sub.dat"}}};
  for (const auto& [name, left] : rows) {
    GCFileUtil::DeleteFile(name);
    Names found;
    for (const auto& entry : fs::directory_iterator(folder_.Path())) found.insert(entry.path().filename().string());
    EXPECT_EQ(found, left) << ToUtf8(name);
  }
}

TEST_F(FileUtil, ListsATree) {
  for (const char16_t* name : {u"run1.dat", u"x.txt", u"overrun2.DAT", u"sub/deep/run3.dat"}) folder_.Write(name);
  // Noon of 2020-07-01 in local time, which is summer where there is one.
  std::tm noon{};
  noon.tm_year = 120, noon.tm_mon = 6, noon.tm_mday = 1, noon.tm_hour = 12, noon.tm_isdst = -1;
  const auto past = std::chrono::system_clock::from_time_t(std::mktime(&noon)) - std::chrono::system_clock::now();
  fs::last_write_time(folder_.Path() / "run1.dat", fs::file_time_type::clock::now() +
                                                       std::chrono::duration_cast<fs::file_time_type::duration>(past));
  const struct {
    const char16_t* pattern;
    bool recursive;
    Names names;
  } rows[] = {{u"", true, {"overrun2.DAT", "run1.dat", "sub\\deep\\run3.dat", "x.txt"}},
              {u"*.dat", false, {"overrun2.DAT", "run1.dat"}},
              {u"RUN#.DAT", true, {"overrun2.DAT", "run1.dat", "sub\\deep\\run3.dat"}},  // the end of the name only
              {u"*run1.dat", false, {"run1.dat"}}};
  CStrVector names;
  CDblVector dates;
  for (const auto& [pattern, recursive, expected] : rows) {
    const std::int32_t before = names.Size();  // appended, not cleared
    GCFileUtil::GetDirContents(folder_.Path().u16string(), pattern, recursive, names, dates);
    Names found;
    for (std::int32_t i = before + 1; i <= names.Size(); ++i) {
      const std::u16string& name = names.Value(i);
      found.insert(ToUtf8(name.substr(folder_.Name(u"").size())));
      if (name != folder_.Name(u"run1.dat")) continue;
      EXPECT_NEAR(dates.Value(i), 44013.5, 1.5 / 86400);
    }
    EXPECT_EQ(found, expected) << ToUtf8(pattern);
  }
  EXPECT_EQ(dates.Size(), names.Size());
  CStrVector all;
  GCFileUtil::GetDirContents(folder_.Path().u16string() + u'\0', u"", true, all, dates);
  EXPECT_EQ(all.Size(), 4) << "read as far as the zero";
  const auto list = [&] { GCFileUtil::GetDirContents(folder_.Name(u""), u"[", false, names, dates); };
  EXPECT_EQ(ErrorOf(list), NumberOf(RuntimeError::InvalidPattern));
}

}  // namespace
}  // namespace qzbase::tests
