// The public face in the interface definition language, from which the compiler of type libraries makes the type
// library and the header for early-bound C++ programs.
//
// Slots follow the rows of the tables. Defaults are written where the type library compiler can store them: those of
// doubles and dates it cannot, nor those of parameters passed by reference. There the parameter is merely optional,
// and the default takes effect in late binding only. The header's functions have no defaults: those of texts would be
// no texts of automation, and some only would have them.
#pragma once

#include <string>
#include <string_view>

#include "qzbase/automation/idl/Face.h"

namespace qzbase::automation::idl {

// The name of the parameter that takes a member's result.
inline constexpr std::string_view kResultName = "pResult";

enum class IdlUse { TypeLibrary, Header };

// Of a face without faults (FaceCheck.h).
std::string IdlText(const Face& pFace, IdlUse pUse);

}  // namespace qzbase::automation::idl
