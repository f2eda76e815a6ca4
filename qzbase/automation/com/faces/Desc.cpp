#include "qzbase/automation/members/Desc.h"

// The tables stand before the system's headers.
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<DescClasses>;

}  // namespace qzbase::automation::com
