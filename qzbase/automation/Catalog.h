// All classes, records and enumerations as descriptions only, without a line of the classes themselves.
//
// The programs of idl/ are made of them on the machine that builds, also when that builds for another one; so nothing
// here needs the rest of the library.
#pragma once

#include <span>

#include "qzbase/automation/Members.h"
#include "qzbase/automation/Records.h"
#include "qzbase/automation/Types.h"

namespace qzbase::automation {

struct ClassDesc {
  const Identity* identity = nullptr;
  const MemberTable* members = nullptr;
};

struct Catalog {
  std::span<const ClassDesc> classes;
  std::span<const RecordDesc> records;
  std::span<const EnumDesc> enumerations;
};

const Catalog& LibraryCatalog();

}  // namespace qzbase::automation
