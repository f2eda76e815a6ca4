// Keeps the machine awake while a program works without its user.
#pragma once

namespace qzbase::os {

// Tells the system that the program needs it to stay running, as a key press would: it does not fall asleep before its
// usual time has passed once more. Nothing where the system takes no such word, and no failure is reported.
void SignalBusy() noexcept;

}  // namespace qzbase::os
