// The roots of the registry store.
//
// The system's headers of Windows have macros of these names. They are set aside here, so that this header can be
// included before or after them; where both are, a root is written as its number, TRegKey(1).
#pragma once

#include <cstdint>

#pragma push_macro("HKEY_CLASSES_ROOT")
#pragma push_macro("HKEY_CURRENT_USER")
#pragma push_macro("HKEY_LOCAL_MACHINE")
#pragma push_macro("HKEY_USERS")
#pragma push_macro("HKEY_PERFORMANCE_DATA")
#pragma push_macro("HKEY_CURRENT_CONFIG")
#pragma push_macro("HKEY_DYN_DATA")
#undef HKEY_CLASSES_ROOT
#undef HKEY_CURRENT_USER
#undef HKEY_LOCAL_MACHINE
#undef HKEY_USERS
#undef HKEY_PERFORMANCE_DATA
#undef HKEY_CURRENT_CONFIG
#undef HKEY_DYN_DATA

namespace qzbase {

// Do not change the numbers: they are in people's files and programs.
enum TRegKey : std::int32_t {
  HKEY_CLASSES_ROOT = 0,
  HKEY_CURRENT_USER = 1,
  HKEY_LOCAL_MACHINE = 2,
  HKEY_USERS = 3,
  HKEY_PERFORMANCE_DATA = 4,
  HKEY_CURRENT_CONFIG = 5,
  HKEY_DYN_DATA = 6,
};

}  // namespace qzbase

#pragma pop_macro("HKEY_CLASSES_ROOT")
#pragma pop_macro("HKEY_CURRENT_USER")
#pragma pop_macro("HKEY_LOCAL_MACHINE")
#pragma pop_macro("HKEY_USERS")
#pragma pop_macro("HKEY_PERFORMANCE_DATA")
#pragma pop_macro("HKEY_CURRENT_CONFIG")
#pragma pop_macro("HKEY_DYN_DATA")
