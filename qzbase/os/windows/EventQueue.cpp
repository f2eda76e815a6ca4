// Implementation notes. Handlers may post as many messages as they take, so that the queue is never empty: a round ends
// with its time too, whatever is left in it.
#include "qzbase/os/EventQueue.h"

#include <windows.h>

#include "qzbase/os/Ticks.h"

namespace qzbase::os {
namespace {

constexpr std::uint32_t kRoundMilliseconds = 20;

}  // namespace

void ProcessQueuedEvents() {
  const std::uint32_t start = TickMilliseconds();
  MSG message;
  while (TickMilliseconds() - start < kRoundMilliseconds && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // It is the host's loop that has to end.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace qzbase::os
