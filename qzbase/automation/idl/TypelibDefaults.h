// The defaults of doubles and dates in a compiled type library, where its compiler leaves their places empty.
//
// Implementation notes. A library begins with a directory of its segments. The segment of values holds each one as its
// type in two bytes, its bytes, and filling up to four. A type's members lie behind the segments, as records: one that
// has defaults has a place for each parameter, with the position of its value, before the parameters.
#pragma once

#include <string>

#include "qzbase/automation/Catalog.h"

namespace qzbase::automation::idl {

// Whether the default of a parameter is one of those. (Those of parameters by reference are merely optional.)
bool IsFloatingDefault(const ParameterDesc& pParameter);

// Fills the places in the bytes of the library compiled from the catalog's IdlText. False where they do not fit.
bool WriteFloatingDefaults(std::string& pLibrary, const Catalog& pCatalog);

}  // namespace qzbase::automation::idl
