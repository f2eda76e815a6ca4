// Localisation of texts, error messages and forms. Table and tree exist once per thread.
//
// A host loads its translations at start-up, from wherever it keeps them:
//
//   CStrVector texts;    // key, NUL, text
//   texts.AddValue(u"To\0bis"s);
//   CStrVector errors;   // module, NUL, identifier, NUL, message
//   errors.AddValue(u"System\0Stop\0Vom Benutzer abgebrochen"s);
//   ModResource::SetLocalizedStrings(texts, errors);
//
// From then on every message, type name and range that the library shows on this thread is translated; the library's
// own keys are its English words, and for messages "Module.ID", or "ID" where they carry additional information. A text
// of the table goes before the message of the registry.
//
// A form is translated by a node of the tree that has its name (CLocalGUI.h):
//
//   ModResource::LocalizedGUI()->AddChild(form);
//   ModResource::LocalizeForm(&window);
#pragma once

#include <string_view>

#include "qzbase/data/CStrVector.h"
#include "qzbase/locale/CLocalGUI.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::ModResource {

// Adds a text to the thread's table. The same text again does nothing; another one raises LocKeyExists with "key: text
// that is there | text refused".
void AddLocalizedString(std::u16string_view pKey, std::u16string_view pText);

// Adds each text of `pMsg`, whose key ends at its first NUL (without one it is all key, and the text is empty), and
// then replaces the registered messages that `pErrMsg` has. Errors that nobody has registered are passed over; an empty
// module stands for any, as in every look-up of the registry. A refused text ends the call: what was added before it
// stays. Unset messages raise error 91 when the texts have been added.
void SetLocalizedStrings(const CStrVector& pMsg, const CStrVector* pErrMsg);

// The root of the thread's tree, always the same object.
runtime::Ref<CLocalGUI> LocalizedGUI();

// Assigns the properties of the form's node to the form and those of its controls' nodes to the controls, in the order
// of the form's collection. Called by name are the form's `Name` and `Controls`, the collection's `Count` and its
// default member or else `Item` (from 0), and of a control `Name` and, where it has one, `Index`.
//
// Raises nothing, and leaves the thread's last error alone: what fails is left out, a control without a name too, and
// the rest is done all the same.
void LocalizeForm(runtime::Object* pForm);

// Assigns a text to the property named: "Caption", or "List(3)" with the index 3 as argument. What stands before the
// first ")" is read as a leading number, 0 where there is none, and rounded half to even (error 6 outside 32 bits).
// Raises what the object raises.
void SetGUIProperty(runtime::Object& pObject, std::u16string_view pID, std::u16string_view pValue);

}  // namespace qzbase::ModResource
