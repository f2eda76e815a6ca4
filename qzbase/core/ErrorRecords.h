// The two records of the error registry.
#pragma once

#include <cstdint>
#include <string>

namespace qzbase {

// One registered error. It is named by `Module` and `ID` and known to callers by its number.
struct TErrDesc {
  std::int32_t Code = 0;  // the number that is raised
  std::u16string ID;      // the identifier within the module, such as "InvRange"
  std::u16string Module;  // such as "Format"
  std::u16string Msg;     // the message, in English
  bool AddInfo = false;   // the message is to carry the additional information of the raise
  bool operator==(const TErrDesc&) const = default;
};

// The position of an entry of the registry, from 1. 0: no error; -1: the registration failed.
struct TErrIndex {
  std::int32_t Value = 0;
  bool operator==(const TErrIndex&) const = default;
};

}  // namespace qzbase
