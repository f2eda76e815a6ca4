#include "qzbase/automation/members/Core.h"
//
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<CoreClasses>;

}  // namespace qzbase::automation::com
