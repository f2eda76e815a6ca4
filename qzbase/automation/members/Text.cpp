#include "qzbase/automation/members/Text.h"

#include "qzbase/automation/RoomEntries.h"

namespace qzbase::automation {

template struct RoomEntries<TextClasses>;

}  // namespace qzbase::automation
