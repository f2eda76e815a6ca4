#include "qzbase/os/MessageBox.h"

#include <cstdio>
#include <string>
#include <utility>

#include "qzbase/os/MessageDisplay.h"
#include "qzbase/os/ThreadSlot.h"
#include "qzbase/os/Utf8.h"

namespace qzbase::os {
namespace {

MessageHook& ThreadMessageHook() {
  static PerThread<MessageHook> hook;
  return *hook;
}

void Show(MessageIcon pIcon, std::u16string_view pText, std::u16string_view pCaption) {
  // A copy: the hook may set another one.
  if (const MessageHook hook = ThreadMessageHook()) return hook(pText, pCaption);
  DisplayMessage(pIcon, pText, pCaption);
}

}  // namespace

void ShowMessage(std::u16string_view pText, std::u16string_view pCaption) {
  Show(MessageIcon::None, pText, pCaption);
}

void ShowCriticalMessage(std::u16string_view pText, std::u16string_view pCaption) {
  Show(MessageIcon::Critical, pText, pCaption);
}

void SetMessageHook(MessageHook pHook) {
  ThreadMessageHook() = std::move(pHook);
}

void PrintMessage(std::u16string_view pText, std::u16string_view pCaption) {
  const std::string line = ToUtf8(pCaption) + ": " + ToUtf8(pText) + "\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
  std::fflush(stderr);
}

}  // namespace qzbase::os
