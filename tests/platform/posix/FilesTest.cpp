// What only Linux has: names that are any bytes, and links that anyone may set.
#include <set>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "qzbase/platform/GCFileUtil.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TempFolder.h"

namespace qzbase::tests {
namespace {

namespace fs = std::filesystem;

constexpr std::int32_t kNoAccess = NumberOf(runtime::RuntimeError::PathFileAccess);

class LinuxFiles : public testing::Test {
 protected:
  // All files below the folder, without its name.
  std::multiset<std::u16string> Listed() const {
    CStrVector names;
    CDblVector dates;
    GCFileUtil::GetDirContents(folder_.Path().u16string(), u"", true, names, dates);
    std::multiset<std::u16string> listed;
    for (std::int32_t i = 1; i <= names.Size(); ++i) listed.insert(names.Value(i).substr(folder_.Name(u"").size()));
    return listed;
  }

  const TempFolder folder_;
};

TEST_F(LinuxFiles, SeparatorsBehindTheNameOfAFolderSayNothing) {
  for (const char16_t* separators : {u"/", u"//", u"\\/"}) {
    const std::u16string name = folder_.Name(u"x") + separators;
    for (int time = 0; time < 2; ++time) EXPECT_EQ(GCFileUtil::MakeDir(name), 0);
    EXPECT_TRUE(GCFileUtil::PathExists(name));
    EXPECT_EQ(GCFileUtil::DelDir(name), 0);
    EXPECT_FALSE(GCFileUtil::PathExists(folder_.Name(u"x")));
  }
  folder_.Write(u"file");
  EXPECT_FALSE(GCFileUtil::FileExists(folder_.Name(u"file/")));
  EXPECT_FALSE(GCFileUtil::PathExists(u"//"));
  EXPECT_EQ(GCFileUtil::MakeDir(u"/"), kNoAccess);
}

TEST_F(LinuxFiles, LinksAreEnteredAndLeadBackToNoFolderThatIsListed) {
  folder_.Write(u"a/file");
  const std::pair<const char*, const char*> links[] = {{"b", "a"},         {"self", "."},       {"a/up", ".."},
                                                       {"a/twin", "../b"}, {"nowhere", "none"}, {"linked", "a/file"}};
  for (const auto& [name, target] : links) fs::create_symlink(target, folder_.Path() / name);
  EXPECT_EQ(Listed(), (std::multiset<std::u16string>{u"a\\file", u"b\\file", u"linked", u"nowhere"}));
  for (const char16_t* name : {u"b", u"b/", u"b\\"}) {
    EXPECT_TRUE(GCFileUtil::PathExists(folder_.Name(name)));
    EXPECT_EQ(GCFileUtil::DelDir(folder_.Name(name)), kNoAccess);
  }
}

// What was listed is found, entered and deleted, though a name is no text, or has a "\".
TEST_F(LinuxFiles, EveryNameComesBackFromItsText) {
  const std::string names[] = {"r\xE9sum\xE9",         "r\xEAsum\xE9", "\xC3", "\xC3\xA4\xA4", "\xED\xA0\x80",
                               "\xF0\x9F\x98\x80\x80", "a\\b",         "\\",   "\xEF\xBF\xBD"};
  for (const std::string& name : names) {
    const std::string folder = (folder_.Path() / name).string();
    if (mkdir(folder.c_str(), S_IRWXU) != 0) GTEST_SKIP() << "this file system wants texts";
    std::ofstream(fs::path(folder) / name) << "x";
  }
  const fs::path before = fs::current_path();
  const auto listed = Listed();
  EXPECT_EQ(listed.size(), std::size(names));
  for (const std::u16string& found : listed) {
    const std::u16string name = folder_.Name(found);
    const std::u16string folder = GCFileUtil::GetPath(name);
    EXPECT_TRUE(GCFileUtil::FileExists(name));
    EXPECT_TRUE(GCFileUtil::PathExists(folder));
    GCFileUtil::ChangeDir(folder);
    EXPECT_TRUE(GCFileUtil::FileExists(GCFileUtil::StripPath(name)));
    fs::current_path(before);
    GCFileUtil::DeleteFile(name);
    EXPECT_EQ(GCFileUtil::DelDir(folder), 0);
    EXPECT_EQ(GCFileUtil::MakeDir(folder), 0);
  }
  for (const std::string& name : names) EXPECT_TRUE(fs::is_empty(folder_.Path() / name));
}

TEST_F(LinuxFiles, DatesBeforeDayZero) {
  const TempFolder memory("/dev/shm");
  memory.Write(u"old");
  std::tm local{};  // 1890-06-01 06:00
  local.tm_year = -10, local.tm_mon = 5, local.tm_mday = 1, local.tm_hour = 6, local.tm_isdst = -1;
  const timespec times[2] = {{std::mktime(&local), 0}, {std::mktime(&local), 0}};
  const std::string file = (memory.Path() / "old").string();
  struct stat status {};
  if (utimensat(AT_FDCWD, file.c_str(), times, 0) != 0 || stat(file.c_str(), &status) != 0 ||
      status.st_mtim.tv_sec != times[1].tv_sec)
    GTEST_SKIP() << "no file can be so old here";
  CStrVector names;
  CDblVector dates;
  GCFileUtil::GetDirContents(memory.Path().u16string(), u"", false, names, dates);
  EXPECT_EQ(dates.Value(1), -3499.25);
}

}  // namespace
}  // namespace qzbase::tests
