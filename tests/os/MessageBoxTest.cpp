#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "qzbase/os/MessageBox.h"
#include "qzbase/os/MessageDisplay.h"

namespace qzbase::tests {
namespace {

TEST(MessageBox, TheHookOfTheThreadTakesItsPlace) {
  std::u16string seen;
  const auto record = [&](std::u16string_view pText, std::u16string_view pCaption) {
    (((seen += pCaption) += u"/") += pText) += u";";
  };
  os::SetMessageHook(record);
  os::ShowCriticalMessage(u"T1", u"C1");
  std::thread([&] {
    os::SetMessageHook([&](auto pText, auto) { (seen += u"other/") += pText; });
    os::ShowCriticalMessage(u"T2;", u"C2");
  }).join();
  os::ShowCriticalMessage(u"T3", u"C3");
  os::SetMessageHook({});
  EXPECT_EQ(seen, u"C1/T1;other/T2;C3/T3;");
}

TEST(MessageBox, TheHookMayTakeItselfAway) {
  int calls = 0;
  os::SetMessageHook([&](auto, auto) {
    os::SetMessageHook([&](auto, auto) { calls += 10; });
    ++calls;
  });
  os::ShowCriticalMessage(u"a", u"b");
  os::ShowCriticalMessage(u"a", u"b");
  os::SetMessageHook({});
  EXPECT_EQ(calls, 11);
}

TEST(MessageBox, WithoutADesktopOneLineIsPrinted) {
  testing::internal::CaptureStderr();
  os::PrintMessage(u"Gr\u00F6\u00DFe", u"Caption");
  EXPECT_EQ(testing::internal::GetCapturedStderr().substr(0, 16),
            "Caption: Gr\xC3\xB6\xC3\x9F"
            "e");
}

}  // namespace
}  // namespace qzbase::tests
