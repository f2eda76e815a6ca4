#include "qzbase/os/MessageDisplay.h"

namespace qzbase::os {

void DisplayCriticalMessage(std::u16string_view pText, std::u16string_view pCaption) {
  PrintCriticalMessage(pText, pCaption);
}

}  // namespace qzbase::os
