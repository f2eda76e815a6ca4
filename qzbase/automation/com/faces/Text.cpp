#include "qzbase/automation/members/Text.h"

// The tables stand before the system's headers.
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<TextClasses>;

}  // namespace qzbase::automation::com
