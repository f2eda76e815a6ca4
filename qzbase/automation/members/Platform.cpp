#include "qzbase/automation/members/Platform.h"

#include "qzbase/automation/RoomEntries.h"

namespace qzbase::automation {

template struct RoomEntries<PlatformClasses>;

}  // namespace qzbase::automation
