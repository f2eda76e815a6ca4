// The enumerations of the descriptors.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/desc/QZCtrlType.h"

namespace qzbase::automation {

template <>
inline constexpr auto items<QZCtrlType> = enumeration<QZCtrlType>({
    {"ECTInvalid", ECTInvalid},
    {"ECTEdit", ECTEdit},
    {"ECTCombo", ECTCombo},
    {"ECTOption", ECTOption},
    {"ECTColor", ECTColor},
    {"ECTList", ECTList},
});

}  // namespace qzbase::automation
