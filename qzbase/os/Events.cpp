#include "qzbase/os/Events.h"

#include <utility>

#include "qzbase/os/EventQueue.h"
#include "qzbase/os/ThreadSlot.h"

namespace qzbase::os {
namespace {

EventHook& ThreadEventHook() {
  static PerThread<EventHook> hook;
  return *hook;
}

}  // namespace

void ProcessEvents() {
  // A copy: the hook may set another one.
  if (const EventHook hook = ThreadEventHook()) return hook();
  ProcessQueuedEvents();
}

void SetEventHook(EventHook pHook) {
  ThreadEventHook() = std::move(pHook);
}

}  // namespace qzbase::os
