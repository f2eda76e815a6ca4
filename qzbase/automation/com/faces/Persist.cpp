#include "qzbase/automation/members/Persist.h"

// The tables stand before the system's headers.
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<PersistClasses>;

}  // namespace qzbase::automation::com
