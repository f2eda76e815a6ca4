// What only Windows has: messages during a wait, and files by their handles.
#include <string>

#include <gtest/gtest.h>
#include <windows.h>

#include "qzbase/platform/GCBase.h"

namespace qzbase::tests {
namespace {

TEST(WindowsServices, ATimerStopsAWait) {
  static bool wasWaiting = false;
  const UINT_PTR timer = SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) {
    wasWaiting = GCBase::SystemWaiting();
    GCBase::LetStopFlag(true);
  });
  const std::int32_t start = GCBase::TimeInCentiSecs();
  GCBase::WaitSecs(60);
  EXPECT_LT(GCBase::TimeInCentiSecs() - start, 3000);
  EXPECT_TRUE(wasWaiting);
  KillTimer(nullptr, timer);
  GCBase::LetStopFlag(false);

  PostQuitMessage(7);
  GCBase::WaitSecs(0.02);
  MSG message{};
  EXPECT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));  // left to the host's loop
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 7U);
}

// A window that posts a message from the handler of each, so that its queue is never empty.
TEST(WindowsServices, AFloodOfMessagesHoldsUpNeitherTheStopFlagNorTheEndOfAWait) {
  static int handled = 0;
  WNDCLASSW type{};
  type.lpszClassName = L"QZBaseFlood";
  type.lpfnWndProc = [](HWND pWindow, UINT pMessage, WPARAM pFirst, LPARAM pSecond) -> LRESULT {
    if (pMessage != WM_APP) return DefWindowProcW(pWindow, pMessage, pFirst, pSecond);
    if (++handled == 5) GCBase::LetStopFlag(true);
    PostMessageW(pWindow, WM_APP, 0, 0);
    return 0;
  };
  ASSERT_NE(RegisterClassW(&type), 0);
  const HWND window = CreateWindowW(type.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  ASSERT_NE(window, nullptr);
  PostMessageW(window, WM_APP, 0, 0);
  GCBase::WaitSecs(60);
  EXPECT_TRUE(GCBase::StopFlag());
  GCBase::LetStopFlag(false);
  const std::int32_t start = GCBase::TimeInCentiSecs();
  GCBase::WaitSecs(0.1);
  EXPECT_LT(GCBase::TimeInCentiSecs() - start, 1000);
  EXPECT_GT(handled, 5);
  DestroyWindow(window);
  UnregisterClassW(type.lpszClassName, nullptr);
}

TEST(WindowsServices, DebugLinesInAnOpenFile) {
  HANDLE reader = nullptr;
  HANDLE writer = nullptr;
  ASSERT_TRUE(CreatePipe(&reader, &writer, nullptr, 0));
  GCBase::SetDbgFileHdl(HandleToLong(writer));
  GCBase::ShowDebugLine(u"Gr\u00FC\u00DFe");
  GCBase::SetDbgFileHdl(0);
  std::string text(64, '\0');
  DWORD count = 0;
  EXPECT_TRUE(ReadFile(reader, text.data(), static_cast<DWORD>(text.size()), &count, nullptr));
  EXPECT_EQ(text.substr(0, count),
            "Gr\xC3\xBC\xC3\x9F"
            "e\r\n");
  CloseHandle(reader);
  CloseHandle(writer);
}

}  // namespace
}  // namespace qzbase::tests
