#include "qzbase/os/MessageBox.h"

#include <cstdio>
#include <string>
#include <utility>

#include "qzbase/os/MessageDisplay.h"
#include "qzbase/os/ThreadSlot.h"
#include "qzbase/os/Utf8.h"

namespace qzbase::os {
namespace {

CriticalMessageHook& ThreadHook() {
  static PerThread<CriticalMessageHook> hook;
  return *hook;
}

}  // namespace

void ShowCriticalMessage(std::u16string_view pText, std::u16string_view pCaption) {
  // A copy: the hook may set another one.
  if (const CriticalMessageHook hook = ThreadHook()) return hook(pText, pCaption);
  DisplayCriticalMessage(pText, pCaption);
}

void SetCriticalMessageHook(CriticalMessageHook pHook) {
  ThreadHook() = std::move(pHook);
}

void PrintCriticalMessage(std::u16string_view pText, std::u16string_view pCaption) {
  const std::string line = ToUtf8(pCaption) + ": " + ToUtf8(pText) + "\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
  std::fflush(stderr);
}

}  // namespace qzbase::os
