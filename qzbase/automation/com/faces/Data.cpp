#include "qzbase/automation/members/Data.h"

// The tables stand before the system's headers.
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<DataClasses>;

}  // namespace qzbase::automation::com
