// The members of the descriptors, and their enumerations.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/automation/members/ObjectRows.h"
#include "qzbase/desc/CEntryDescs.h"
#include "qzbase/desc/CTypedInfo.h"
#include "qzbase/desc/CVarDescs.h"
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

// ---- What holds descriptors.

template <class L>
inline constexpr auto kGetDesc = get<&L::Desc>("Desc", {"pIndex"}, "A copy of the descriptor at a position from 1.");
template <class L>
inline constexpr auto kSetDesc = set<&L::SetDesc>("Desc", {"pIndex"});
template <class L>
inline constexpr auto kLetDesc = let<&L::LetDesc>("Desc", {"pIndex"});
template <class L>
inline constexpr auto kDescRef = get<&L::DescRef>("DescRef", {"pIndex"}, "The stored descriptor itself.");
template <class L>
inline constexpr auto kIndexOfID = method<&L::Index>("Index", {"pID"},
                                                     "The first position of an identifier, -1 if there is none.");

template <class L>
constexpr auto DescListTable() {
  return table(let<&L::LetSize>("Size"), get<&L::Size>("Size", "The number of descriptors."), kSetDesc<L>, kLetDesc<L>,
               kGetDesc<L>, kDescRef<L>, method<&L::AddDesc>("AddDesc", {"pDesc"}, "Appends a copy of a descriptor."),
               method<&L::MoveDesc>("MoveDesc", {"pOldPos", "pNewPos"},
                                    "Shifts the descriptors from one position to another by one."),
               method<&L::InsertDesc>("InsertDesc", {"pDesc", "pAtPos"},
                                      "Inserts a copy of a descriptor and returns its position."),
               method<&L::DeleteDesc>("DeleteDesc", {"pIndex"}, "Removes a descriptor."), kIndexOfID<L>,
               method<&L::GetString>("GetString", "The texts of all descriptors, for people."), ObjectRows<L>());
}

template <>
inline constexpr auto members<CVarDescs> = DescListTable<CVarDescs>();
template <>
inline constexpr auto members<CEntryDescs> = DescListTable<CEntryDescs>();

template <>
inline constexpr auto members<CTypedInfo> =
    table(method<&CTypedInfo::Clear>("Clear", "Removes all infos."), let<&CTypedInfo::LetNrInfos>("NrInfos"),
          get<&CTypedInfo::NrInfos>("NrInfos", "The number of infos."), kGetDesc<CTypedInfo>, kSetDesc<CTypedInfo>,
          kLetDesc<CTypedInfo>, kDescRef<CTypedInfo>,
          method<&CTypedInfo::AddInfo>("AddInfo", {"pDesc", "pValue"}, "Appends a value and a copy of its descriptor."),
          method<&CTypedInfo::DeleteInfo>("DeleteInfo", {"pIndex"}, "Removes a value and its descriptor."),
          get<&CTypedInfo::Value>("Value", {"pIndex"}, "The value at a position from 1."),
          let<&CTypedInfo::LetValue>("Value", {"pIndex"}), kIndexOfID<CTypedInfo>,
          method<&CTypedInfo::GetValue>("GetValue", {"pID"}, "The value of an identifier, \"\" if there is none."),
          method<&CTypedInfo::SetValue>("SetValue", {"pID", "pValue"}, "Changes the value of an identifier."),
          get<&CTypedInfo::DescsRef>("DescsRef", "The list of the descriptors itself."),
          method<&CTypedInfo::GetString>("GetString", "All identifiers and all values, for people."),
          method<&CTypedInfo::SetupFrom>("SetupFrom", {"pDesc"}, "Takes over descriptors and empties all values."),
          method<&CTypedInfo::UpdateFrom>("UpdateFrom", {"pSource"},
                                          "Takes over the values whose identifiers are known here."),
          ObjectRows<CTypedInfo>());

}  // namespace qzbase::automation
