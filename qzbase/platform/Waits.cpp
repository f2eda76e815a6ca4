#include "qzbase/platform/Waits.h"

#include <algorithm>

#include "qzbase/core/ModError.h"
#include "qzbase/os/BusySignal.h"
#include "qzbase/os/Events.h"
#include "qzbase/os/ThreadSlot.h"
#include "qzbase/os/Ticks.h"
#include "qzbase/runtime/Convert.h"

namespace qzbase::ModBase {
namespace {

constexpr std::uint32_t kRoundMilliseconds = 10;

// 2^32 milliseconds.
constexpr std::int32_t kFullCount = 429496730;

struct Flags {
  bool stop = false;
  bool waiting = false;
};

Flags& ThreadFlags() {
  static os::PerThread<Flags> flags;
  return *flags;
}

// The thread waits for as long as this lives.
class Waiting {
 public:
  Waiting() { LetSystemWaiting(true); }
  ~Waiting() {
    LetSystemWaiting(false);
    os::SignalBusy();
  }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
};

// The flag is read before the clock, and both before the first sleep.
template <class IsOver>
void WaitFor(IsOver pIsOver) {
  for (;;) {
    const bool stop = StopFlag();
    const std::int32_t now = TimeInCentiSecs();
    if (stop || pIsOver(now)) return;
    os::SleepMilliseconds(kRoundMilliseconds);
    os::ProcessEvents();
  }
}

}  // namespace

std::int32_t TimeInCentiSecs() {
  return CentiSecsOf(os::TickMilliseconds());
}

std::int32_t CentiSecsOf(std::uint32_t pTicks) {
  const std::int32_t centiSecs = runtime::RoundToLong(static_cast<std::int32_t>(pTicks) / 10.0);
  return centiSecs < 0 ? centiSecs + kFullCount : centiSecs;
}

void WaitUntil(std::int32_t pTimeInCentiSecs) {
  const Waiting waiting;
  WaitFor([&](std::int32_t pNow) { return pNow >= pTimeInCentiSecs; });
}

void WaitSecs(double pTimeout) {
  const Waiting waiting;
  const std::int32_t timeout = runtime::RoundToLong(pTimeout * 100);
  const std::int32_t start = TimeInCentiSecs();
  WaitFor([&](std::int32_t pNow) { return pNow - start >= timeout; });
}

void SleepSecs(double pTime) {
  const Waiting waiting;
  const std::int32_t milliseconds = runtime::RoundToLong(pTime * 1000);
  os::SleepMilliseconds(static_cast<std::uint32_t>(std::max(milliseconds, 0)));
}

bool SystemWaiting() {
  return ThreadFlags().waiting;
}

void LetSystemWaiting(bool pNewValue) {
  ThreadFlags().waiting = pNewValue;
}

bool StopFlag() {
  return ThreadFlags().stop;
}

void LetStopFlag(bool pNewValue) {
  ThreadFlags().stop = pNewValue;
}

std::int32_t CheckStopFlag() {
  return StopFlag() ? ModError::StatusOf(BuiltInError::Stop) : 0;
}

TErrIndex ErrStop() {
  return ModError::IndexOf(BuiltInError::Stop);
}

}  // namespace qzbase::ModBase
