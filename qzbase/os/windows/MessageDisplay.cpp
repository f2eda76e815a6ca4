#include "qzbase/os/MessageDisplay.h"

#include <string>

#include <windows.h>

namespace qzbase::os {
namespace {

// Services and scheduled tasks run in a window station that nobody sees; a box there would wait for ever.
bool IsDesktopVisible() {
  // The station belongs to the process; its handle is not closed.
  const HWINSTA station = GetProcessWindowStation();
  USEROBJECTFLAGS flags{};
  return station != nullptr && GetUserObjectInformationW(station, UOI_FLAGS, &flags, sizeof flags, nullptr) &&
         (flags.dwFlags & WSF_VISIBLE) != 0;
}

std::wstring Wide(std::u16string_view pText) {
  return {pText.begin(), pText.end()};
}

}  // namespace

void DisplayCriticalMessage(std::u16string_view pText, std::u16string_view pCaption) {
  if (!IsDesktopVisible() ||
      MessageBoxW(nullptr, Wide(pText).c_str(), Wide(pCaption).c_str(), MB_ICONHAND | MB_OK | MB_TASKMODAL) == 0)
    PrintCriticalMessage(pText, pCaption);
}

}  // namespace qzbase::os
