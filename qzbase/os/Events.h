// Events that wait for the calling thread while it is busy: clicks, timers, whatever its host knows.
#pragma once

#include <functional>

namespace qzbase::os {

// Handles what is waiting, and returns, also when new events come all the time (EventQueue.h). On Windows these are the
// messages of the thread's windows and timers; elsewhere only the host knows where its events are, and sets a hook.
void ProcessEvents();

// Takes the place of the system's way on the calling thread; empty: that way. One call is one
// round: the hook bounds itself. What it raises reaches the caller of `ProcessEvents`.
using EventHook = std::function<void()>;
void SetEventHook(EventHook pHook);

}  // namespace qzbase::os
