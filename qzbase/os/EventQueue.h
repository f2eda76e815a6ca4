// The system's own queue of events of a thread; Events.h is the door to it.
#pragma once

namespace qzbase::os {

// Handles what is in the queue; nothing where the system keeps none for programs.
void ProcessQueuedEvents();

}  // namespace qzbase::os
