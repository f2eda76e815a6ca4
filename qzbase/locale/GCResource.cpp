#include "qzbase/locale/GCResource.h"

#include "qzbase/core/LocalizedText.h"
#include "qzbase/locale/ModResource.h"

namespace qzbase {

std::u16string GCResource::LocalizedString(std::u16string_view pKey, std::u16string_view pDefaultString) {
  return LocalizedText(pKey, pDefaultString);
}

void GCResource::SetLocalizedStrings(const CStrVector& pMsg, const CStrVector* pErrMsg) {
  ModResource::SetLocalizedStrings(pMsg, pErrMsg);
}

runtime::Ref<CLocalGUI> GCResource::LocalizedGUI() {
  return ModResource::LocalizedGUI();
}

void GCResource::LocalizeForm(runtime::Object* pForm) {
  ModResource::LocalizeForm(pForm);
}

void GCResource::SetGUIProperty(runtime::Object& pObject, std::u16string_view pID, std::u16string_view pValue) {
  ModResource::SetGUIProperty(pObject, pID, pValue);
}

}  // namespace qzbase
