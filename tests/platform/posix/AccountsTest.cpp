// Users, groups and passwords against the tools of the system.
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "qzbase/platform/GCBase.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

std::string Printed(const char* pCommand) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(pCommand, "r"), &pclose);
  std::string text(4096, '\0');
  text.resize(std::fread(text.data(), 1, text.size(), pipe.get()));
  return text;
}

TEST(Accounts, UserComputerAndGroups) {
  EXPECT_EQ(ToUtf8(GCBase::WindowsUserName()) + "\n", Printed("id -un"));
  EXPECT_EQ(ToUtf8(GCBase::WindowsServerName()) + "\n", Printed("uname -n"));
  std::string groups;
  const auto vector = GCBase::WindowsLocalGroups();
  for (std::int32_t i = 1; i <= vector->Size(); ++i)
    groups += ToUtf8(vector->Value(i)) + (i < vector->Size() ? " " : "");
  EXPECT_EQ(groups + "\n", Printed("id -Gn \"$(id -un)\""));
  EXPECT_EQ(GCBase::OperatingSystem(), 4);
}

// A user for the length of a scope.
class ScopedUser {
 public:
  explicit ScopedUser(const std::string& pPassword) : name_("qzbase" + std::to_string(getpid())) {
    made_ = Run("useradd --no-create-home " + name_) && Run("echo '" + name_ + ":" + pPassword + "' | chpasswd");
  }
  ~ScopedUser() { Run("userdel " + name_); }
  ScopedUser(const ScopedUser&) = delete;
  ScopedUser& operator=(const ScopedUser&) = delete;

  bool IsMade() const { return made_; }
  std::u16string Name() const { return FromUtf8(name_); }
  bool Expire() const { return Run("chage --expiredate 1 " + name_); }

 private:
  static bool Run(const std::string& pCommand) { return std::system((pCommand + " 2>/dev/null").c_str()) == 0; }

  std::string name_;
  bool made_ = false;
};

TEST(Accounts, Passwords) {
  const std::int32_t refused = NumberOf(BuiltInError::InvWinPasswd);
  EXPECT_EQ(GCBase::WindowsCheckUser(u"", {u"root\0", 5}, u""), refused);
  if (geteuid() != 0) GTEST_SKIP() << "only root makes users";
  const ScopedUser user("s3cret-\xC3\xA4");
  if (!user.IsMade()) GTEST_SKIP() << "this system makes no users";
  EXPECT_EQ(GCBase::WindowsCheckUser(u"any domain", user.Name(), u"s3cret-\u00E4"), 0);
  EXPECT_EQ(GCBase::WindowsCheckUser(u"", user.Name(), u"s3cret"), refused);
  ASSERT_TRUE(user.Expire());
  EXPECT_EQ(GCBase::WindowsCheckUser(u"", user.Name(), u"s3cret-\u00E4"), refused);
}

TEST(Accounts, DebugLinesInAnOpenFile) {
  const std::unique_ptr<FILE, int (*)(FILE*)> file(std::tmpfile(), &std::fclose);
  GCBase::SetDbgFileHdl(fileno(file.get()));
  GCBase::ShowDebugLine(u"Gr\u00FC\u00DFe");
  GCBase::ShowDebugLine(u"");
  GCBase::SetDbgFileHdl(999999);  // not open
  GCBase::ShowDebugLine(u"lost");
  int pipe[2];
  ASSERT_EQ(::pipe(pipe), 0);
  close(pipe[0]);
  GCBase::SetDbgFileHdl(pipe[1]);
  GCBase::ShowDebugLine(u"to nobody");  // which ends no program
  close(pipe[1]);
  GCBase::SetDbgFileHdl(0);
  GCBase::ShowDebugLine(u"nowhere");
  std::rewind(file.get());
  std::string text(64, '\0');
  text.resize(std::fread(text.data(), 1, text.size(), file.get()));
  EXPECT_EQ(text,
            "Gr\xC3\xBC\xC3\x9F"
            "e\n\n");
}

}  // namespace
}  // namespace qzbase::tests
