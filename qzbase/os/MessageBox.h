// A message that the user must not miss.
#pragma once

#include <functional>
#include <string_view>

namespace qzbase::os {

// Shows a modal box with the critical-error icon and an OK button and returns when it is closed. Without a user
// interface (posix; Windows sessions without a visible desktop) one line "CAPTION: TEXT" goes to the diagnostic output
// instead.
void ShowCriticalMessage(std::u16string_view pText, std::u16string_view pCaption);

// Takes the place of the box on the calling thread, in tests and in hosts with a display of their own; empty: the box.
using CriticalMessageHook = std::function<void(std::u16string_view pText, std::u16string_view pCaption)>;
void SetCriticalMessageHook(CriticalMessageHook pHook);

}  // namespace qzbase::os
