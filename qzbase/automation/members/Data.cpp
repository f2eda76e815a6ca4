#include "qzbase/automation/members/Data.h"

#include "qzbase/automation/RoomEntries.h"

namespace qzbase::automation {

template struct RoomEntries<DataClasses>;

}  // namespace qzbase::automation
