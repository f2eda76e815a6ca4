// How each system shows a message in a box of its own; MessageBox.h is the door to it.
#pragma once

#include <cstdint>
#include <string_view>

namespace qzbase::os {

enum class MessageIcon : std::uint8_t { None, Critical };

void DisplayMessage(MessageIcon pIcon, std::u16string_view pText, std::u16string_view pCaption);

// One line "CAPTION: TEXT" on the standard error output.
void PrintMessage(std::u16string_view pText, std::u16string_view pCaption);

}  // namespace qzbase::os
