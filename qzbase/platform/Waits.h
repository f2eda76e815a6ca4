// The clock of hundredths of a second, waiting, and the flag that ends a wait.
//
// A wait looks every 10 ms whether it is over, and lets the host handle its events in between, for a bounded time
// (os/Events.h): no flood of events keeps it from ending. An event
// handler ends it early: a Stop button sets `LetStopFlag(true)`, the wait returns in its next round, and its caller
// raises `CheckStopFlag` and clears the flag. Flags exist once per thread.
#pragma once

#include <cstdint>

#include "qzbase/core/ErrorRecords.h"

namespace qzbase::ModBase {

// Hundredths of a second since the system started, never negative; begins again after 49.7 days. A wait that is under
// way at that moment goes on for as long again. The second form is the value for a count of milliseconds.
std::int32_t TimeInCentiSecs();
std::int32_t CentiSecsOf(std::uint32_t pTicks);

// Waits until `TimeInCentiSecs` has reached a value, or for so many seconds; not at all where that is past or negative.
// What an event handler raises goes through. A time of more than 32 bits in hundredths raises error 6.
void WaitUntil(std::int32_t pTimeInCentiSecs);
void WaitSecs(double pTimeout);

// Blocks the thread without looking at anything; not at all for a negative time. A time of more than 32 bits in
// milliseconds raises error 6.
void SleepSecs(double pTime);

// True while one of the three above runs.
bool SystemWaiting();
void LetSystemWaiting(bool pNewValue);

// The request to stop; the waits read it and do not clear it.
bool StopFlag();
void LetStopFlag(bool pNewValue);

// The error System.Stop: its number when the flag is set (else 0), to be raised by who stops, and its place.
std::int32_t CheckStopFlag();
TErrIndex ErrStop();

}  // namespace qzbase::ModBase
