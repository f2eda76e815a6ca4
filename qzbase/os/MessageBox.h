// Messages that the user must answer before the program goes on.
#pragma once

#include <functional>
#include <string_view>

namespace qzbase::os {

// Shows a modal box with an OK button, without an icon or with the one of critical errors, and returns when it is
// closed. Without a user interface (posix; Windows sessions without a visible desktop) one line "CAPTION: TEXT" goes to
// the diagnostic output instead.
void ShowMessage(std::u16string_view pText, std::u16string_view pCaption);
void ShowCriticalMessage(std::u16string_view pText, std::u16string_view pCaption);

// Takes the place of both boxes on the calling thread, in tests and in hosts with a display of their own; empty: the
// boxes.
using MessageHook = std::function<void(std::u16string_view pText, std::u16string_view pCaption)>;
void SetMessageHook(MessageHook pHook);

}  // namespace qzbase::os
