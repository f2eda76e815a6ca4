// All classes in the interface definition language, from which the compiler of type libraries makes the type
// library and the header for early-bound C++ programs.
//
// Slots follow the rows of the tables. The compiler leaves the places of the defaults of doubles and dates empty
// (TypelibDefaults.h fills them). Parameters passed by reference are merely optional. The header's functions have no
// defaults: those of texts would be no texts of automation, and some only would have them.
#pragma once

#include <string>
#include <string_view>

#include "qzbase/automation/Catalog.h"

namespace qzbase::automation::idl {

// The name of the parameter that takes a member's result.
inline constexpr std::string_view kResultName = "pResult";

enum class IdlUse { TypeLibrary, Header };

// Of a catalog without faults (CatalogCheck.h).
std::string IdlText(const Catalog& pCatalog, IdlUse pUse);

}  // namespace qzbase::automation::idl
