#include "qzbase/automation/members/Data.h"
//
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<DataClasses>;

}  // namespace qzbase::automation::com
