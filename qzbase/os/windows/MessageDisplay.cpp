#include "qzbase/os/MessageDisplay.h"

#include <string>

#include <windows.h>

#include "qzbase/os/windows/WideText.h"

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

}  // namespace

void DisplayMessage(MessageIcon pIcon, std::u16string_view pText, std::u16string_view pCaption) {
  const UINT style = (pIcon == MessageIcon::Critical ? MB_ICONHAND : 0U) | MB_OK | MB_TASKMODAL;
  // A visible station may still have no screen; the box then fails at once, with another result than its one button's.
  const bool shown =
      IsDesktopVisible() && MessageBoxW(nullptr, Wide(pText).c_str(), Wide(pCaption).c_str(), style) == IDOK;
  if (!shown) PrintMessage(pText, pCaption);
}

}  // namespace qzbase::os
