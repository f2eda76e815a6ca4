#include <algorithm>
#include <chrono>
#include <set>
#include <string>
#include <tuple>

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

TEST_F(FileUtil, FindsFilesAndFolders) {
  folder_.Write(u"sub/run.dat");
  const std::tuple<const char16_t*, bool, bool> rows[] = {{u"sub", false, true},
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
  const std::tuple<const char16_t*, bool, Names> rows[] = {
      {u"", true, {"overrun2.DAT", "run1.dat", "sub\\deep\\run3.dat", "x.txt"}},
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
      EXPECT_NEAR(dates.Value(i), name.ends_with(u"run1.dat") ? 44013.5 : dates.Value(i), 1.5 / 86400);
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
