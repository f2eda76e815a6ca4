// Globally unique identifiers and their registry form.
#pragma once

#include <string>

#include "qzbase/platform/TGuid.h"

namespace qzbase::ModBase {

// From the system's generator; all zero where that fails.
TGuid GetGUID();

// "{0A1B2C3D-0001-00FF-0A0B-0C0D0E0F1011}": upper-case digits, each part as wide as its field.
std::u16string GUIDString(const TGuid& GUID);

}  // namespace qzbase::ModBase
