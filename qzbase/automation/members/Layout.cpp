#include "qzbase/automation/members/Layout.h"

#include "qzbase/automation/RoomEntries.h"

namespace qzbase::automation {

template struct RoomEntries<LayoutClasses>;

}  // namespace qzbase::automation
