#include "qzbase/platform/DisplayHooks.h"

#include <utility>

#include "qzbase/os/MessageBox.h"
#include "qzbase/os/ThreadSlot.h"
#include "qzbase/runtime/Attempt.h"

namespace qzbase::ModBase {
namespace {

using runtime::Attempt;
using runtime::Object;
using runtime::Ref;

enum DisplayType : std::int32_t { kCaption = 1, kText = 2 };

// The title of a box that nobody has given one.
constexpr std::u16string_view kTitle = u"QZBase";

struct Display {
  Ref<Object> object;
  std::int32_t type = 0;
};

struct Displays {
  Display errors;
  Display messages;
};

Displays& ThreadDisplays() {
  static os::PerThread<Displays> displays;
  return *displays;
}

// A copy of the display: the handlers that it calls may set another.
void Show(Display pDisplay, std::u16string_view pText) {
  const bool isCaption = pDisplay.type == kCaption;
  if (isCaption || pDisplay.type == kText) {
    if (pDisplay.object) Attempt([&] { pDisplay.object->Let(isCaption ? u"Caption" : u"Text", pText); });
  } else if (!pText.empty()) {
    Attempt([&] { os::ShowMessage(pText, kTitle); });
  }
}

}  // namespace

void SetErrorDisplay(Ref<Object> pErrDisplay, std::int32_t pType) {
  ThreadDisplays().errors = {std::move(pErrDisplay), pType};
}

void DisplayError(std::u16string_view pErrorMessage) {
  Show(ThreadDisplays().errors, pErrorMessage);
}

void SetMsgDisplay(Ref<Object> pMsgDisplay, std::int32_t pType) {
  ThreadDisplays().messages = {std::move(pMsgDisplay), pType};
}

void DisplayMessage(std::u16string_view pMessage) {
  Show(ThreadDisplays().messages, pMessage);
}

}  // namespace qzbase::ModBase
