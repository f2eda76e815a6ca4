#include "qzbase/locale/ModResource.h"

#include <string>

#include "qzbase/core/ModError.h"
#include "qzbase/core/StringTable.h"
#include "qzbase/os/ThreadSlot.h"
#include "qzbase/runtime/Attempt.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/Positions.h"

namespace qzbase::ModResource {
namespace {

using runtime::Attempt;
using runtime::Object;
using runtime::Positions;
using runtime::Raise;
using runtime::Ref;
using runtime::RuntimeError;
using runtime::ToObject;

struct ThreadState {
  Ref<CLocalGUI> root = runtime::New<CLocalGUI>();
};

// Takes off what stands before the first `pDelim`, everything where there is none.
std::u16string_view TakeUpTo(char16_t pDelim, std::u16string_view& pRest) {
  const std::u16string_view part = pRest.substr(0, pRest.find(pDelim));
  pRest.remove_prefix(part.size() < pRest.size() ? part.size() + 1 : part.size());
  return part;
}

void ReplaceMessage(std::u16string_view pItem) {
  const std::u16string_view module = TakeUpTo(u'\0', pItem);
  const std::u16string_view id = TakeUpTo(u'\0', pItem);
  const std::int32_t position = ModError::FindErrIndex(module, id);
  if (position > 0) ModError::Registry().Entry(position).Msg = pItem;
}

// "" where it cannot be read.
std::u16string TextOf(Object& pObject, std::u16string_view pName) {
  return Attempt([&] { return runtime::ToText(pObject.Get(pName)); }).value_or(u"");
}

Ref<Object> ControlAt(Object& pControls, std::int32_t pIndex) {
  for (const std::u16string_view member : {u"", u"Item"})
    if (auto control = Attempt([&] { return ToObject(pControls.Get(member, pIndex)); })) return *control;
  return nullptr;
}

// Host code that is called may change the node: its texts are copied, and its positions checked, each time.
void Apply(const CLocalGUI& pNode, Object& pObject) {
  for (const std::int32_t k : Positions(1, pNode.NrProperties()))
    Attempt(
        [&] { SetGUIProperty(pObject, std::u16string(pNode.PropertyID(k)), std::u16string(pNode.PropertyValue(k))); });
}

void LocalizeControl(const CLocalGUI& pFormNode, Object& pControl) {
  const std::u16string index = TextOf(pControl, u"Index");
  const auto find = [&] { return pFormNode.FindChild(runtime::ToText(pControl.Get(u"Name")), index); };
  if (const auto node = Attempt(find).value_or(nullptr)) Apply(*node, pControl);
}

void Localize(Object& pForm) {
  const Ref<CLocalGUI> root = LocalizedGUI();
  const std::int32_t position = root->ChildIndex(TextOf(pForm, u"Name"));
  if (position < 1) return;
  const Ref<CLocalGUI> node = root->Child(position);
  Apply(*node, pForm);

  const auto controls = ToObject(pForm.Get(u"Controls"));
  const std::int32_t count = runtime::ToLong(controls->Get(u"Count"));
  for (std::int32_t j = 0; j < count; ++j)
    if (const auto control = ControlAt(*controls, j)) LocalizeControl(*node, *control);
}

}  // namespace

void AddLocalizedString(std::u16string_view pKey, std::u16string_view pText) {
  const std::u16string& stored = ThreadStrings().Add(pKey, pText);
  if (stored == pText) return;
  std::u16string info(pKey);
  info.append(u": ").append(stored).append(u" | ").append(pText);
  ModError::RaiseBuiltIn(BuiltInError::LocKeyExists, info);
}

void SetLocalizedStrings(const CStrVector& pMsg, const CStrVector* pErrMsg) {
  for (const std::int32_t i : Positions(1, pMsg.Size())) {
    std::u16string_view text = pMsg.Value(i);
    const std::u16string_view key = TakeUpTo(u'\0', text);
    AddLocalizedString(key, text);
  }
  if (!pErrMsg) Raise(RuntimeError::ObjectNotSet);
  for (const std::int32_t i : Positions(1, pErrMsg->Size())) ReplaceMessage(pErrMsg->Value(i));
}

Ref<CLocalGUI> LocalizedGUI() {
  static os::PerThread<ThreadState> state;
  return state->root;
}

void LocalizeForm(Object* pForm) {
  if (pForm) Attempt([&] { Localize(*pForm); });
}

void SetGUIProperty(Object& pObject, std::u16string_view pID, std::u16string_view pValue) {
  if (pID.find(u'(') == std::u16string_view::npos) return pObject.Let(pID, pValue);
  const std::u16string_view name = TakeUpTo(u'(', pID);
  const std::u16string_view index = TakeUpTo(u')', pID);
  pObject.Let(name, runtime::RoundToLong(runtime::LeadingNumber(index)), pValue);
}

}  // namespace qzbase::ModResource
