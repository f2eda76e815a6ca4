#include "qzbase/os/EventQueue.h"

#include <windows.h>

namespace qzbase::os {

void ProcessQueuedEvents() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
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
