// Where errors and messages are shown: in an object of the host's, or in a message box.
//
//   SetErrorDisplay(statusBar, 2);   DisplayError(text) sets the property Text of the object
//   SetErrorDisplay(label, 1);                          Caption
//   SetErrorDisplay(nullptr, 0);                        any other type: a modal box with an OK button
//
// An empty text empties the property, and shows no box. Without an object types 1 and 2 show nothing. What the object
// raises is ignored. There is one place for errors and one for messages, once per thread; at the start a box for both.
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/runtime/Object.h"

namespace qzbase::ModBase {

void SetErrorDisplay(runtime::Ref<runtime::Object> pErrDisplay, std::int32_t pType);
void DisplayError(std::u16string_view pErrorMessage);

void SetMsgDisplay(runtime::Ref<runtime::Object> pMsgDisplay, std::int32_t pType);
void DisplayMessage(std::u16string_view pMessage);

}  // namespace qzbase::ModBase
