// The members of the core: the error registry, the math helpers, value types and colours.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/core/ErrorRecords.h"
#include "qzbase/core/GCError.h"
#include "qzbase/core/GCMath.h"
#include "qzbase/core/QZColor.h"
#include "qzbase/core/QZVarType.h"
#include "qzbase/data/CDblVector.h"

namespace qzbase::automation {

template <>
inline constexpr auto fields<TErrDesc> =
    record(field<&TErrDesc::Code>("Code", "The number that is raised."),
           field<&TErrDesc::ID>("ID", "The identifier within the module."),
           field<&TErrDesc::Module>("Module", "The module."), field<&TErrDesc::Msg>("Msg", "The message, in English."),
           field<&TErrDesc::AddInfo>("AddInfo", "Whether the message carries additional information."));

template <>
inline constexpr auto fields<TErrIndex> =
    record(field<&TErrIndex::Value>("Value", "The position from 1; 0 for no error, -1 for a failed registration."));

template <>
inline constexpr auto members<GCError> = table(
    method<&GCError::NrRegisteredErrors>("NrRegisteredErrors", "The number of registered errors."),
    method<&GCError::RegisterError>("RegisterError", {"pModule", "pID", "pMsg", opt("pAddInfo", false)},
                                    "Registers an error; the index is -1 when that fails."),
    method<&GCError::ErrCode>("ErrCode", {byRef("pIdx")}, "The number of a registered error."),
    method<&GCError::ErrID>("ErrID", {byRef("pIdx")}, "The identifier of a registered error."),
    method<&GCError::ErrModule>("ErrModule", {byRef("pIdx")}, "The module of a registered error."),
    method<&GCError::SetAddErrInfo>("SetAddErrInfo", {"pInfo"}, "Sets the additional information of the next error."),
    method<&GCError::ErrorMessage>("ErrorMessage", {"pErrCode"}, "The text to show for an error number."),
    method<&GCError::IgnoreErr>("IgnoreErr", {"pErrCode"}, "Does nothing: marks an error as ignored on purpose."),
    method<&GCError::Throw>("Throw", {"pErrCode", opt("pAddInfo", u"*")},
                            "Raises an error; \"*\" keeps the additional information set before."),
    method<&GCError::SetServerId>("SetServerId", {"pID"}, "Sets the source of the errors thrown on this thread."),
    method<&GCError::ErrIndex>("ErrIndex", {"pModule", "pID"},
                               "The position of an error by module (or none) and identifier, 0 if there is none."),
    method<&GCError::GetErrors>("GetErrors", "All registered errors."),
    method<&GCError::SetErrors>("SetErrors", {byRef("pErrors")}, "Replaces all registered errors."),
    get<&GCError::EDesc>("EDesc", {"pIdx"}, "A registered error."),
    method<&GCError::SetEDesc>("SetEDesc", {"pIdx", byRef("pDesc")}, "Replaces a registered error."),
    method<&GCError::UpdateErrMessage>("UpdateErrMessage", {"pIdx", byRef("pMsg")},
                                       "Replaces the message of a registered error."),
    method<&GCError::SynchErrors>("SynchErrors", {byRef("pClient")},
                                  "Gives every error the number that it has in another process."));

template <>
inline constexpr auto members<GCMath> =
    table(method<&GCMath::ACos>("ACos", {"phi"}, "The arc cosine, in radians."),
          method<&GCMath::Ceil>("Ceil", {"Value"}, "Floor of a whole number, else one more than Floor."),
          method<&GCMath::Floor>("Floor", {"Value"}, "The number as displayed, cut towards zero."),
          method<&GCMath::Round>("Round", {"Value"}, "The nearest whole number, halves away from zero."),
          method<&GCMath::RoundUp>("RoundUp", {"Value", "Decimals"}, "Ceil at a number of decimals."),
          method<&GCMath::RoundSigFigs>("RoundSigFigs", {"Value", "SigFigs"}, "Rounds to significant figures."),
          method<&GCMath::Log10>("Log10", {byRef("X")}, "The logarithm to the base 10."),
          method<&GCMath::Max>("Max", {whole("val1"), whole("val2")}, "The greater one of two values."),
          method<&GCMath::Min>("Min", {whole("val1"), whole("val2")}, "The lesser one of two values."),
          method<&GCMath::Pow>("Pow", {"Bases", "Expo"}, "A number above 0 raised to a power."),
          method<&GCMath::Swap>("Swap", {"val1", "val2"}, "Exchanges two values."),
          method<&GCMath::Inc>("Inc", {"InVal"}, "Adds 1 to a number, which is the result too."),
          method<&GCMath::Dec>("Dec", {"InVal"}, "Subtracts 1 from a number, which is the result too."),
          get<&GCMath::PI>("PI", "The ratio of a circle's circumference to its diameter."),
          method<&GCMath::CalcMean>("CalcMean", {"pY", out("pMean"), out("pAbsStdDev")},
                                    "Mean and standard deviation of a vector; 0 or the number of an error."));

template <>
inline constexpr auto items<QZVarType> = enumeration<QZVarType>({
    {"EVTInvalid", EVTInvalid},
    {"EVTBoolean", EVTBoolean},
    {"EVTDouble", EVTDouble},
    {"EVTLong", EVTLong},
    {"EVTString", EVTString},
    {"EVTDate", EVTDate},
    {"EVTColor", EVTColor},
    {"EVTObject", EVTObject},
    {"EVTEnum", EVTEnum},
});

template <>
inline constexpr auto items<QZColor> = enumeration<QZColor>({
    {"qzWhite", qzWhite},
    {"qzBLACK", qzBLACK},
    {"qzLightGrey", qzLightGrey},
    {"qzGREY", qzGREY},
    {"qzDarkGrey", qzDarkGrey},
    {"qzLightBlue", qzLightBlue},
    {"qzBlue", qzBlue},
    {"qzDarkBlue", qzDarkBlue},
    {"qzLightGreen", qzLightGreen},
    {"qzGreen", qzGreen},
    {"qzDarkGreen", qzDarkGreen},
    {"qzLightRed", qzLightRed},
    {"qzRed", qzRed},
    {"qzDarkRed", qzDarkRed},
    {"qzLightYellow", qzLightYellow},
    {"qzYellow", qzYellow},
    {"qzDarkYellow", qzDarkYellow},
    {"qzCyan", qzCyan},
    {"qzPurple", qzPurple},
    {"qzInvalidColor", qzInvalidColor},
    {"qzScrollBars", qzScrollBars},
    {"qzDesktop", qzDesktop},
    {"qzActiveTitleBar", qzActiveTitleBar},
    {"qzInactiveTitleBar", qzInactiveTitleBar},
    {"qzMenuBar", qzMenuBar},
    {"qzWindowBackground", qzWindowBackground},
    {"qzWindowFrame", qzWindowFrame},
    {"qzMenuText", qzMenuText},
    {"qzWindowText", qzWindowText},
    {"qzTitleBarText", qzTitleBarText},
    {"qzActiveBorder", qzActiveBorder},
    {"qzInactiveBorder", qzInactiveBorder},
    {"qzApplicationWorkspace", qzApplicationWorkspace},
    {"qzHighlight", qzHighlight},
    {"qzHighlightText", qzHighlightText},
    {"qzButtonFace", qzButtonFace},
});

}  // namespace qzbase::automation
