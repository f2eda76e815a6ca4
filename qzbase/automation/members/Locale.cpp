#include "qzbase/automation/members/Locale.h"

#include "qzbase/automation/RoomEntries.h"

namespace qzbase::automation {

template struct RoomEntries<LocaleClasses>;

}  // namespace qzbase::automation
