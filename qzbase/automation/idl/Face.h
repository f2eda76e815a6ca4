// The public face as the programs of this folder see it: descriptions only, without a line of the classes themselves.
//
// They are made on the machine that builds, also when that builds for another one; so nothing here needs the library.
#pragma once

#include <span>

#include "qzbase/automation/Members.h"
#include "qzbase/automation/Records.h"
#include "qzbase/automation/Types.h"

namespace qzbase::automation::idl {

struct ClassDesc {
  const Identity* identity = nullptr;
  const MemberTable* members = nullptr;
};

struct Face {
  std::span<const ClassDesc> classes;
  std::span<const RecordDesc> records;
  std::span<const EnumDesc> enumerations;
};

// The library's own.
const Face& LibraryFace();

}  // namespace qzbase::automation::idl
