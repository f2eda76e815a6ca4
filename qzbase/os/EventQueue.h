// The system's own queue of events of a thread; Events.h is the door to it.
#pragma once

namespace qzbase::os {

// Handles what is in the queue, for some hundredths of a second at most: what is left then waits for the next call, and
// only a handler that does not return takes longer. Nothing where the system keeps no queue for programs.
void ProcessQueuedEvents();

}  // namespace qzbase::os
