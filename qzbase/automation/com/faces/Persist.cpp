#include "qzbase/automation/members/Persist.h"
//
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<PersistClasses>;

}  // namespace qzbase::automation::com
