// The members of the descriptors, and their enumerations.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/automation/members/ObjectRows.h"
#include "qzbase/desc/QZCtrlType.h"
#include "qzbase/desc/TCtrlDesc.h"
#include "qzbase/desc/TEntryDesc.h"
#include "qzbase/desc/TVarDesc.h"

namespace qzbase::automation {

template <>
inline constexpr auto items<QZCtrlType> = enumeration<QZCtrlType>({
    {"ECTInvalid", ECTInvalid},
    {"ECTEdit", ECTEdit},
    {"ECTCombo", ECTCombo},
    {"ECTOption", ECTOption},
    {"ECTColor", ECTColor},
    {"ECTList", ECTList},
});

// ---- The properties, of which an entry has those of both its parts. The let of each stands before its get.

template <class D>
inline constexpr auto kDescID = rows(let<&D::LetID>("ID"), get<&D::ID>("ID", "The identifier."));
template <class D>
inline constexpr auto kDescVarType = rows(let<&D::LetVarType>("VarType"),
                                          get<&D::VarType>("VarType", "The value type."));
template <class D>
inline constexpr auto kDescName =
    rows(let<&D::LetName>("Name"), get<&D::Name>("Name", "The display name, or the identifier where there is none."));
template <class D>
inline constexpr auto kDescUnit = rows(let<&D::LetUnit>("Unit"), get<&D::Unit>("Unit", "The unit."));
template <class D>
inline constexpr auto kDescOutFormat = rows(let<&D::LetOutFormat>("OutFormat"),
                                            get<&D::OutFormat>("OutFormat", "The format of the value's text."));
template <class D>
inline constexpr auto kDescDescription = rows(let<&D::LetDescription>("Description"),
                                              get<&D::Description>("Description", "A text that describes the value."));
template <class D>
inline constexpr auto kDescTag = rows(let<&D::LetTag>("Tag"), get<&D::Tag>("Tag", "A text for the application."));
template <class D>
inline constexpr auto kDescIsFormula = rows(let<&D::LetIsFormula>("IsFormula"),
                                            get<&D::IsFormula>("IsFormula", "Whether the value is a formula."));
template <class D>
inline constexpr auto kDescNrDims = rows(let<&D::LetNrDims>("NrDims"),
                                         get<&D::NrDims>("NrDims", "The number of dimensions, 0 for a single value."));
template <class D>
inline constexpr auto kDescCtrlType = rows(let<&D::LetCtrlType>("CtrlType"),
                                           get<&D::CtrlType>("CtrlType", "The kind of control."));
template <class D>
inline constexpr auto kDescRange = rows(let<&D::LetRange>("Range"),
                                        get<&D::Range>("Range", "The range string of the values allowed."));
template <class D>
inline constexpr auto kDescInterval = rows(let<&D::LetInterval>("Interval"),
                                           get<&D::Interval>("Interval", "The step in the range."));
template <class D>
inline constexpr auto kDescWidth = rows(let<&D::LetWidth>("Width"),
                                        get<&D::Width>("Width", "The width of the control."));
template <class D>
inline constexpr auto kDescSaveMask = rows(let<&D::LetSaveMask>("SaveMask"),
                                           get<&D::SaveMask>("SaveMask",
                                                             "Whether range and step are saved and compared."));
template <class D>
inline constexpr auto kDescRemovable = rows(let<&D::LetRemovable>("Removable"),
                                            get<&D::Removable>("Removable", "Whether the user may remove the entry."));
template <class D>
inline constexpr auto kDescVisible = rows(let<&D::LetVisible>("Visible"),
                                          get<&D::Visible>("Visible", "Whether the control is shown."));
template <class D>
inline constexpr auto kDescUserDefined = rows(let<&D::LetUserDefined>("UserDefined"),
                                              get<&D::UserDefined>("UserDefined", "Whether the user made the entry."));
template <class D>
inline constexpr auto kDescLocked = rows(let<&D::LetLocked>("Locked"),
                                         get<&D::Locked>("Locked", "Whether the control is read-only."));

template <class D>
constexpr auto DescRows() {
  return rows(method<&D::GetString>("GetString", "All fields as a text, for people."), ObjectRows<D>());
}

template <>
inline constexpr auto members<TVarDesc> = table(kDescID<TVarDesc>, kDescVarType<TVarDesc>, kDescName<TVarDesc>,
                                                kDescUnit<TVarDesc>, kDescOutFormat<TVarDesc>,
                                                kDescDescription<TVarDesc>, kDescTag<TVarDesc>,
                                                kDescIsFormula<TVarDesc>, kDescNrDims<TVarDesc>, DescRows<TVarDesc>());

template <>
inline constexpr auto members<TCtrlDesc> = table(kDescID<TCtrlDesc>, kDescCtrlType<TCtrlDesc>, kDescRange<TCtrlDesc>,
                                                 kDescInterval<TCtrlDesc>, kDescWidth<TCtrlDesc>,
                                                 kDescSaveMask<TCtrlDesc>, kDescRemovable<TCtrlDesc>,
                                                 kDescVisible<TCtrlDesc>, kDescUserDefined<TCtrlDesc>,
                                                 kDescLocked<TCtrlDesc>, DescRows<TCtrlDesc>());

template <>
inline constexpr auto members<TEntryDesc> =
    table(kDescID<TEntryDesc>, kDescVarType<TEntryDesc>, kDescName<TEntryDesc>, kDescUnit<TEntryDesc>,
          kDescDescription<TEntryDesc>, kDescTag<TEntryDesc>, kDescOutFormat<TEntryDesc>, kDescIsFormula<TEntryDesc>,
          kDescNrDims<TEntryDesc>, kDescCtrlType<TEntryDesc>, kDescRange<TEntryDesc>, kDescInterval<TEntryDesc>,
          kDescWidth<TEntryDesc>, kDescRemovable<TEntryDesc>, kDescVisible<TEntryDesc>, kDescSaveMask<TEntryDesc>,
          kDescUserDefined<TEntryDesc>, kDescLocked<TEntryDesc>, set<&TEntryDesc::SetCtrlDesc>("CtrlDesc"),
          get<&TEntryDesc::CtrlDesc>("CtrlDesc", "The control part itself."), set<&TEntryDesc::SetVarDesc>("VarDesc"),
          get<&TEntryDesc::VarDesc>("VarDesc", "The value part itself."), DescRows<TEntryDesc>());

}  // namespace qzbase::automation
