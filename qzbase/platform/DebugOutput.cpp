#include "qzbase/platform/DebugOutput.h"

#include <string>
#include <utility>

#include "qzbase/os/OpenFile.h"
#include "qzbase/os/ThreadSlot.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/IgnoreErrors.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::ModBase {
namespace {

using runtime::IgnoreErrors;
using runtime::Object;
using runtime::Ref;
using runtime::RuntimeError;
using runtime::Variant;

constexpr std::int32_t kMaxLines = 300;

// In twips, by which the visible lines are counted.
constexpr std::int32_t kLineHeight = 200;
constexpr std::int32_t kTallLineHeight = 300;

struct DebugState {
  std::int32_t mode = 0;
  Ref<Object> window;
  std::int32_t maxLines = kMaxLines;
  std::int32_t lineHeight = kLineHeight;
  std::int32_t file = 0;
};

DebugState& State() {
  static os::PerThread<DebugState> state;
  return *state;
}

// A property of the control's font object, or the control's own of that name behind "Font".
Variant FontProperty(Object& pControl, std::u16string_view pName) {
  try {
    const Variant font = pControl.Get(u"Font");
    if (const auto* object = font.If<Ref<Object>>(); object && *object) return (*object)->Get(pName);
  } catch (const runtime::AutomationError&) {
    // A control of the older kind.
  }
  return pControl.Get(std::u16string(u"Font").append(pName));
}

// One font, in one range of sizes, is drawn with more room.
bool HasTallLines(Object& pControl) {
  if (!runtime::EqualName(runtime::ToText(FontProperty(pControl, u"Name")), u"Tahoma")) return false;
  const double size = runtime::ToDouble(FontProperty(pControl, u"Size"));
  return size > 11 && size < 12;
}

void DropFirstLine(Object& pList, std::int32_t pMaxLines) {
  if (runtime::ToLong(pList.Get(u"ListCount")) > pMaxLines) pList.Call(u"RemoveItem", 0);
}

void ShowLastLine(Object& pList, std::int32_t pLineHeight) {
  const std::int32_t visible = runtime::ToLong(pList.Get(u"Height")) / pLineHeight - 1;
  const std::int32_t count = runtime::ToLong(pList.Get(u"ListCount"));
  if (count > visible) pList.Let(u"TopIndex", runtime::CheckedNarrow<std::int32_t>(std::int64_t{count} - visible));
}

}  // namespace

std::int32_t DebugMode() {
  return State().mode;
}

void LetDebugMode(std::int32_t pNewValue) {
  State().mode = pNewValue;
}

void SetDbgWindow(Ref<Object> pDbgWnd, std::int32_t pMaxLines) {
  bool isTall = false;
  if (pDbgWnd) IgnoreErrors([&] { isTall = HasTallLines(*pDbgWnd); });
  DebugState& state = State();
  state.maxLines = pMaxLines >= 1 ? pMaxLines : kMaxLines;
  state.lineHeight = isTall ? kTallLineHeight : kLineHeight;
  state.window = std::move(pDbgWnd);
}

void SetDbgFileHdl(std::int32_t pHdl) {
  State().file = pHdl;
}

void ShowDebugLine(std::u16string_view pDbgLine) {
  // A copy: the control's handlers may set another window.
  const DebugState state = State();
  if (state.window) {
    Object& list = *state.window;
    IgnoreErrors([&] { DropFirstLine(list, state.maxLines); });
    IgnoreErrors([&] { list.Call(u"AddItem", pDbgLine); });
    IgnoreErrors([&] { ShowLastLine(list, state.lineHeight); });
  }
  if (state.file != 0) IgnoreErrors([&] { os::WriteLine(state.file, pDbgLine); });
}

}  // namespace qzbase::ModBase
