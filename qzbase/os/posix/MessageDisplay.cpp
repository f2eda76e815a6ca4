#include "qzbase/os/MessageDisplay.h"

namespace qzbase::os {

void DisplayMessage(MessageIcon, std::u16string_view pText, std::u16string_view pCaption) {
  PrintMessage(pText, pCaption);
}

}  // namespace qzbase::os
