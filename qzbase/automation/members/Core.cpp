#include "qzbase/automation/members/Core.h"

#include "qzbase/automation/RoomEntries.h"

namespace qzbase::automation {

template struct RoomEntries<CoreClasses>;

}  // namespace qzbase::automation
