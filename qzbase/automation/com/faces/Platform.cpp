#include "qzbase/automation/members/Platform.h"

// The tables stand before the system's headers.
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<PlatformClasses>;

}  // namespace qzbase::automation::com
