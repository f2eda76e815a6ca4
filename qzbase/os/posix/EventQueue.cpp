#include "qzbase/os/EventQueue.h"

namespace qzbase::os {

void ProcessQueuedEvents() {}

}  // namespace qzbase::os
