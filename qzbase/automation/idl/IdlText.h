// The public face in the interface definition language, from which the compiler of type libraries makes the type library
// and the header for early-bound C++ programs.
//
// Slots follow the rows of the tables. Defaults are written where the type library compiler can store them: those of
// doubles and dates it cannot, nor those of parameters passed by reference. There the parameter is merely optional,
// and the default takes effect in late binding only.
#pragma once

#include <string>
#include <string_view>

#include "qzbase/automation/idl/Face.h"

namespace qzbase::automation::idl {

// The name of the parameter that takes a member's result.
inline constexpr std::string_view kResultName = "pResult";

// Of a face without faults (FaceCheck.h).
std::string IdlText(const Face& pFace);

}  // namespace qzbase::automation::idl
