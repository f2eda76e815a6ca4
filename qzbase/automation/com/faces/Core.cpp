#include "qzbase/automation/members/Core.h"

// The tables stand before the system's headers.
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<CoreClasses>;

}  // namespace qzbase::automation::com
