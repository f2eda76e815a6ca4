#include "qzbase/automation/members/Locale.h"

// The tables stand before the system's headers.
#include "qzbase/automation/com/RoomFaces.h"

namespace qzbase::automation::com {

template struct RoomFaces<LocaleClasses>;

}  // namespace qzbase::automation::com
