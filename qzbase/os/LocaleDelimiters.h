// What the system's data about a locale leave open or contradict, settled in one way for all systems.
#pragma once

#include "qzbase/os/LocaleRules.h"

namespace qzbase::os {

// Takes the separators of dates and times out of the short date and the long time. Where one delimiter would be both
// the decimal and the thousands one, thousands get another; money whose delimiters have the opposite meaning in numbers
// gets those of the numbers. What is written could not be read otherwise.
void SettleDelimiters(LocaleRules& pRules);

// Empties the names of months beside a day where they are the plain ones. The short names follow the long ones: in
// languages without such forms the two lists differ in a dot at most.
void SettleMonthNames(LocaleRules& pRules);

}  // namespace qzbase::os
