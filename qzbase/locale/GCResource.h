// The public face of localisation. Every member works on the calling thread's texts and tree (ModResource.h); an object
// of this class has no state of its own.
#pragma once

#include <string>
#include <string_view>

#include "qzbase/data/CStrVector.h"
#include "qzbase/locale/CLocalGUI.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class GCResource : public runtime::Object {
 public:
  // The text of a key; the default where the key is not known; the key itself where the default is empty.
  static std::u16string LocalizedString(std::u16string_view pKey, std::u16string_view pDefaultString = {});

  // Loads texts ("key", NUL, "text") and error messages ("module", NUL, "identifier", NUL, "message"). Raises
  // LocKeyExists, and adds no more, for a key that has another text; error 91 for unset messages, when the texts are
  // in.
  static void SetLocalizedStrings(const CStrVector& pMsg, const CStrVector* pErrMsg);

  // The root of the tree of forms, to be filled in place.
  static runtime::Ref<CLocalGUI> LocalizedGUI();

  // Applies the tree to a form and its controls. Raises nothing.
  static void LocalizeForm(runtime::Object* pForm);

  // Assigns a text to a property by name, "List(3)" with an index. Raises what the object raises.
  static void SetGUIProperty(runtime::Object& pObject, std::u16string_view pID, std::u16string_view pValue);
};

}  // namespace qzbase
