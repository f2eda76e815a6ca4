// What is wrong with the tables although they compile.
//
//   - Two spellings of one name. A type library keeps all names of classes, members, parameters, fields and items in
//   one
//     pool that ignores case, so the spelling that comes first wins everywhere: editors would rewrite the other one.
//   - Two things of one name that clients see side by side: classes, records, enumerations and their items.
//   - What the interface language cannot say: records passed by value, arrays of objects, texts beyond ASCII.
#pragma once

#include <string>
#include <vector>

#include "qzbase/automation/Catalog.h"

namespace qzbase::automation::idl {

// One line a fault.
std::vector<std::string> FaultsOf(const Catalog& pCatalog);

}  // namespace qzbase::automation::idl
