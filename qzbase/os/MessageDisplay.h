// How each system shows a message that the user must not miss; `ShowCriticalMessage` is the door to it.
#pragma once

#include <string_view>

namespace qzbase::os {

void DisplayCriticalMessage(std::u16string_view pText, std::u16string_view pCaption);

// One line "CAPTION: TEXT" on the standard error output.
void PrintCriticalMessage(std::u16string_view pText, std::u16string_view pCaption);

}  // namespace qzbase::os
