#include "qzbase/automation/members/Text.h"
//
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<TextClasses>;

}  // namespace qzbase::automation::com
