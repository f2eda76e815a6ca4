#include "qzbase/automation/members/Desc.h"

#include "qzbase/automation/RoomEntries.h"

namespace qzbase::automation {

template struct RoomEntries<DescClasses>;

}  // namespace qzbase::automation
