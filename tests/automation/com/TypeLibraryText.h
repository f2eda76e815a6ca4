// A type library as text, read back through the system: one line for each class, member, record, field, enumeration and
// item, in the form of the golden text of the public face (tests/golden/typelib.txt).
//
// What a line says besides: the order is that of the slots, and a member whose place in the interface is not the next
// one has its offset behind it; so have a member without help, and a class, record or enumeration without.
#pragma once

#include <string>

#include "qzbase/automation/com/Platform.h"

namespace qzbase::tests {

std::string TypeLibraryText(ITypeLib& pLibrary);

}  // namespace qzbase::tests
