#include "qzbase/automation/members/Persist.h"

#include "qzbase/automation/RoomEntries.h"

namespace qzbase::automation {

template struct RoomEntries<PersistClasses>;

}  // namespace qzbase::automation
