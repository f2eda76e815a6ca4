// The kinds of control that edit a value.
#pragma once

#include <cstdint>

namespace qzbase {

// Do not change the numbers: they are in people's files and programs.
enum QZCtrlType : std::int32_t {
  ECTInvalid = 0,
  ECTEdit = 1,
  ECTCombo = 2,
  ECTOption = 3,
  ECTColor = 4,
  ECTList = 5,
};

}  // namespace qzbase
