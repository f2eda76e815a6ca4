#include "qzbase/platform/DebugOutput.h"

#include <string>
#include <utility>

#include "qzbase/os/OpenFile.h"
#include "qzbase/os/ThreadSlot.h"
#include "qzbase/platform/FontStyles.h"
#include "qzbase/runtime/Attempt.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::ModBase {
namespace {

using runtime::Attempt;
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

// A member of the control's font object, or the control's own of that name behind "Font".
Variant FontProperty(Object& pControl, const runtime::NumberedMember& pMember) {
  if (auto value = Attempt([&] { return FontMember(*runtime::ToObject(pControl.Get(u"Font")), pMember); }))
    return *value;
  return pControl.Get(std::u16string(u"Font").append(pMember.name));  // a control of the older kind
}

// One font, in one range of sizes, is drawn with more room.
bool HasTallLines(Object& pControl) {
  if (!runtime::EqualName(runtime::ToText(FontProperty(pControl, kFontName)), u"Tahoma")) return false;
  const double size = runtime::ToDouble(FontProperty(pControl, kFontSize));
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
  if (pDbgWnd) Attempt([&] { isTall = HasTallLines(*pDbgWnd); });
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
    Attempt([&] { DropFirstLine(list, state.maxLines); });
    Attempt([&] { list.Call(u"AddItem", pDbgLine); });
    Attempt([&] { ShowLastLine(list, state.lineHeight); });
  }
  if (state.file != 0) Attempt([&] { os::WriteLine(state.file, pDbgLine); });
}

}  // namespace qzbase::ModBase
