// The members of localisation: texts and forms, and the tree of their settings.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/automation/members/ObjectRows.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/locale/CLocalGUI.h"
#include "qzbase/locale/GCResource.h"

namespace qzbase::automation {

template <>
inline constexpr auto members<GCResource> =
    table(method<&GCResource::LocalizedString>("LocalizedString", {"pKey", opt("pDefaultString", u"")},
                                               "The translation of a key, else the default, else the key."),
          method<&GCResource::SetLocalizedStrings>("SetLocalizedStrings", {"pMsg", "pErrMsg"},
                                                   "Loads translated texts and error messages."),
          method<&GCResource::LocalizedGUI>("LocalizedGUI", "The root of the tree of localised forms."),
          method<&GCResource::LocalizeForm>("LocalizeForm", {"pForm"}, "Applies the tree to a form and its controls."),
          method<&GCResource::SetGUIProperty>("SetGUIProperty", {byRef("pObject"), "pID", "pValue"},
                                              "Sets a property by name; List(3) is one with an index."));

template <>
inline constexpr auto members<CLocalGUI> = table(
    get<&CLocalGUI::ID>("ID", "The name of the form or control."), let<&CLocalGUI::LetID>("ID"),
    get<&CLocalGUI::PropertyType>("PropertyType", "A text for the owner of the tree."),
    let<&CLocalGUI::LetPropertyType>("PropertyType"),
    get<&CLocalGUI::NrChildren>("NrChildren", "The number of children."), let<&CLocalGUI::LetNrChildren>("NrChildren"),
    method<&CLocalGUI::AddChild>("AddChild", {"pChild"}, "Appends a node, which is shared."),
    method<&CLocalGUI::FindChild>("FindChild", {"pID", "pIndex"},
                                  "The first node below this one for a control and its index, or nothing."),
    method<&CLocalGUI::ChildIndex>("ChildIndex", {"pID"}, "The position of the first child with an ID, or -1."),
    get<&CLocalGUI::Child>("Child", {"pIdx"}, "The child at a position from 1, itself."),
    let<&CLocalGUI::LetChild>("Child", {"pIdx"}),
    get<&CLocalGUI::NrProperties>("NrProperties", "The number of properties."),
    let<&CLocalGUI::LetNrProperties>("NrProperties"),
    method<&CLocalGUI::AddProperty>("AddProperty", {"pPropertyID", "pValue"}, "Appends a property and its text."),
    method<&CLocalGUI::PropertyID>("PropertyID", {"pIdx"}, "The name of the property at a position."),
    method<&CLocalGUI::PropertyIndex>("PropertyIndex", {"pID"},
                                      "The position of the first property with a name, or -1."),
    get<&CLocalGUI::PropertyValue>("PropertyValue", {"pIdx"}, "The text of the property at a position."),
    let<&CLocalGUI::LetPropertyValue>("PropertyValue", {"pIdx"}),
    method<&CLocalGUI::PropertyValueByID>("PropertyValueByID", {"pPropertyID"},
                                          "The text of the first property with a name, or nothing."),
    SaveRows<CLocalGUI>());

}  // namespace qzbase::automation
