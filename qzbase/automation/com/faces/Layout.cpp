#include "qzbase/automation/members/Layout.h"

// The tables stand before the system's headers.
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<LayoutClasses>;

}  // namespace qzbase::automation::com
