// The members of the platform services, and their records.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/automation/members/Core.h"
#include "qzbase/automation/members/Layout.h"
#include "qzbase/platform/GCBase.h"
#include "qzbase/platform/GCFileUtil.h"
#include "qzbase/platform/TFontStyle.h"
#include "qzbase/platform/TGuid.h"
#include "qzbase/platform/TTimeStamp.h"

namespace qzbase::automation {

template <>
inline constexpr auto fields<TTimeStamp> = record(field<&TTimeStamp::UniversalTime>("UniversalTime",
                                                                                    "The universal time."),
                                                  field<&TTimeStamp::LocalTime>("LocalTime", "The local time."));

template <>
inline constexpr auto fields<TGuid> = record(field<&TGuid::Data1>("Data1", "The first 8 digits."),
                                             field<&TGuid::Data2>("Data2", "The next 4 digits."),
                                             field<&TGuid::Data3>("Data3", "The next 4 digits."),
                                             field<&TGuid::Data4>("Data4", "The last 16 digits."));

template <>
inline constexpr auto fields<TFontStyle> = record(
    field<&TFontStyle::Name>("Name", "The name of the font."), field<&TFontStyle::Size>("Size", "The size, in points."),
    field<&TFontStyle::Style>("Style", "Bits: 1 bold, 2 italic, 4 underlined, 8 struck through."),
    field<&TFontStyle::Color>("Color", "The colour."));

// ---- GCBase: the factories. `PName` is spelt so wherever it is a parameter: type libraries know one spelling a name.

template <auto kFunction>
constexpr auto EntryFactory(const char* pName, const char* pHelp) {
  return method<kFunction>(pName,
                           {"pID", "pVarType", opt("PName", u""), opt("pUnit", u""), opt("pCtrlType", ECTEdit),
                            opt("pFormat", u""), opt("pRange", u""), opt("pInterval", u""), opt("pSaveMask", true),
                            opt("pUserDefined", false), opt("pRemovable", false)},
                           pHelp);
}

constexpr auto FactoryRows() {
  return rows(method<&GCBase::NewVarDesc>(
                  "NewVarDesc", {"pID", "pVarType", opt("PName", u""), opt("pUnit", u""), opt("pOutFormat", u"")},
                  "A new value descriptor."),
              method<&GCBase::NewCtrlDesc>("NewCtrlDesc", {"pID", "pCtrlType"}, "A new control descriptor."),
              EntryFactory<&GCBase::NewEntryDesc>("NewEntryDesc", "A new entry descriptor of a single value."),
              EntryFactory<&GCBase::NewVectorDesc>("NewVectorDesc", "A new entry descriptor of a vector."),
              method<&GCBase::NewFormulaDesc>(
                  "NewFormulaDesc", {"pID", "PName", "pVarType", "pFormula", opt("pUnit", u""), opt("pFormat", u"")},
                  "A new entry descriptor of a formula."),
              method<&GCBase::EntryDesc>("EntryDesc", {"VarDesc", opt("CtrlDesc")},
                                         "A new entry descriptor of copies of its parts."),
              method<&GCBase::Vector>("Vector", {"Value"}, "A new vector of one value."),
              method<&GCBase::LngVector>("LngVector", {"Value"}, "A new vector of one 32-bit integer."),
              method<&GCBase::DblVector>("DblVector", {"Value"}, "A new vector of one double."),
              method<&GCBase::StrVector>("StrVector", {"Value"}, "A new vector of texts from a text like (a;b;c)."));
}

// ---- GCBase: the services of the system.

constexpr auto SystemRows() {
  return rows(method<&GCBase::IsBinaryEqual>("IsBinaryEqual", {byRef("pBin1"), byRef("pBin2")},
                                             "Whether two arrays have the same bounds and bytes."),
              method<&GCBase::GetGUID>("GetGUID", "A new globally unique identifier."),
              method<&GCBase::GetGUIDString>("GetGUIDString", "The text of a new globally unique identifier."),
              method<&GCBase::GUIDString>("GUIDString", {byRef("GUID")}, "The text of a globally unique identifier."),
              method<&GCBase::OperatingSystem>("OperatingSystem", "The family of the operating system, -1 if unknown."),
              method<&GCBase::FullOSInfo>("FullOSInfo", {out("OSId"), out("Version"), out("Service")},
                                          "The texts of the operating system: family, version, service pack."),
              method<&GCBase::WindowsUserName>("WindowsUserName", "The name of the user."),
              method<&GCBase::WindowsServerName>("WindowsServerName", "The name of the computer."),
              method<&GCBase::WindowsLocalGroups>("WindowsLocalGroups", "The user's groups on this computer."),
              method<&GCBase::WindowsCheckUser>("WindowsCheckUser", {"Domain", "UserName", "Password"},
                                                "0 if the password is right, else the number of an error."));
}

constexpr auto WaitRows() {
  return rows(
      method<&GCBase::TimeInCentiSecs>("TimeInCentiSecs", "Hundredths of a second since the system started."),
      method<&GCBase::WaitUntil>("WaitUntil", {"pTimeInCentiSecs"}, "Waits for a time of TimeInCentiSecs."),
      method<&GCBase::SleepSecs>("SleepSecs", {"pTime"}, "Blocks the thread for some seconds."),
      method<&GCBase::WaitSecs>("WaitSecs", {"pTimeout"}, "Waits for some seconds, or for StopFlag."),
      method<&GCBase::SignalWindowsAppBusy>("SignalWindowsAppBusy", "Keeps the system from falling asleep."),
      method<&GCBase::SizeOf>("SizeOf", {"Arg"}, "The length of a value's text; of a text, 4 more."),
      get<&GCBase::DebugMode>("DebugMode", "The host's debug level."), let<&GCBase::LetDebugMode>("DebugMode"),
      get<&GCBase::StopFlag>("StopFlag", "Whether waits and long work are to stop."),
      let<&GCBase::LetStopFlag>("StopFlag"),
      method<&GCBase::CheckStopFlag>("CheckStopFlag", "The number of the error of a user's interrupt, 0 without one."),
      get<&GCBase::ErrStop>("ErrStop", "The error of a user's interrupt."),
      get<&GCBase::SystemWaiting>("SystemWaiting", "Whether the thread waits."),
      let<&GCBase::LetSystemWaiting>("SystemWaiting"));
}

constexpr auto DisplayRows() {
  return rows(
      method<&GCBase::SetDbgWindow>("SetDbgWindow", {"pDbgWnd", opt("pMaxLines", 0)}, "Sets the list of debug lines."),
      method<&GCBase::SetDbgFileHdl>("SetDbgFileHdl", {"pHdl"}, "Sets the open file of debug lines; 0 for none."),
      method<&GCBase::ShowDebugLine>("ShowDebugLine", {"pDbgLine"}, "Writes a debug line."),
      method<&GCBase::SetErrorDisplay>("SetErrorDisplay", {"pErrDisplay", "pType"}, "Sets where errors are shown."),
      method<&GCBase::DisplayError>("DisplayError", {"pErrorMessage"}, "Shows an error."),
      method<&GCBase::SetMsgDisplay>("SetMsgDisplay", {"pMsgDisplay", "pType"}, "Sets where messages are shown."),
      method<&GCBase::DisplayMessage>("DisplayMessage", {"pMessage"}, "Shows a message."));
}

constexpr auto FontRows() {
  return rows(
      method<&GCBase::SetFontStyle>("SetFontStyle", {"pIsBold", "pIsItalic", "pIsUnderlined", byRef("pIsStriked")},
                                    "The bits of a font style."),
      method<&GCBase::IsBold>("IsBold", {"pStyle"}, "Whether a font style is bold."),
      method<&GCBase::IsItalic>("IsItalic", {"pStyle"}, "Whether a font style is italic."),
      method<&GCBase::IsUnderlined>("IsUnderlined", {"pStyle"}, "Whether a font style is underlined."),
      method<&GCBase::IsStriked>("IsStriked", {"pStyle"}, "Whether a font style is struck through."),
      method<&GCBase::SetFontFromFontStyle>("SetFontFromFontStyle", {byRef("pFont"), byRef("pStyle")},
                                            "Gives a font a font style."),
      method<&GCBase::FontStyle>("FontStyle", {"pFont", opt("pColor", 0)}, "The style of a font."),
      method<&GCBase::SetFontFromLabelStyle>("SetFontFromLabelStyle", {"pFont", byRef("pStyle")},
                                             "Gives a font the style of a label."),
      method<&GCBase::LabelStyle>("LabelStyle",
                                  {"pFont", opt("pColor", 0), opt("pBorderWidth", 1), opt("pOrientation", 0),
                                   opt("pRotation", 0), opt("pBackColor", 0xFFFFFF)},
                                  "A label's style with a font."));
}

template <>
inline constexpr auto members<GCBase> =
    table(FactoryRows(), SystemRows(), WaitRows(), DisplayRows(), FontRows(),
          method<&GCBase::NewTimeStamp>("NewTimeStamp", "This moment, in local and in universal time."));

template <>
inline constexpr auto members<GCFileUtil> = table(
    method<&GCFileUtil::DeleteFile>("DeleteFile", {"FileName"}, "Deletes a file, or all that fit wildcards."),
    method<&GCFileUtil::FileExists>("FileExists", {"FName"}, "Whether there is a file of that name."),
    method<&GCFileUtil::PathExists>("PathExists", {"Path"}, "Whether there is a directory of that name."),
    method<&GCFileUtil::FileNameValid>("FileNameValid", {"FName"}, "Whether the system takes a text for a file name."),
    method<&GCFileUtil::GetExtn>("GetExtn", {"FName"}, "The extension, with its dot."),
    method<&GCFileUtil::GetFileNameIndex>("GetFileNameIndex", {"PName"}, "The digits of the index behind #."),
    method<&GCFileUtil::GetFileNameRoot>("GetFileNameRoot", {"PName"}, "The name without path, index and extension."),
    method<&GCFileUtil::GetPath>("GetPath", {"FName"}, "The path, with its last backslash."),
    method<&GCFileUtil::IndexedFileName>("IndexedFileName", {"FName", "Index"},
                                         "The name with an index; below 1, with its own."),
    method<&GCFileUtil::PathToDir>("PathToDir", {"Path"}, "A path without its last backslash, unless of a drive."),
    method<&GCFileUtil::StripExtn>("StripExtn", {byRef("PName")}, "The name without its extension."),
    method<&GCFileUtil::StripFileNameIndex>("StripFileNameIndex", {"PName"},
                                            "A name without extension, without # and index."),
    method<&GCFileUtil::StripPath>("StripPath", {byRef("FName")}, "The name without its path."),
    method<&GCFileUtil::ChangeDir>("ChangeDir", {"Directory"}, "Makes a directory and its drive current."),
    method<&GCFileUtil::GetDirContents>("GetDirContents", {"RootDir", "Pattern", "Recursiv", "FName", "FDate"},
                                        "Appends the files of a directory and their dates."),
    method<&GCFileUtil::MakeDir>("MakeDir", {"Path"}, "Makes a directory; 0 or the number of an error."),
    method<&GCFileUtil::DelDir>("DelDir", {"Path"}, "Removes an empty directory; 0 or the number of an error."));

}  // namespace qzbase::automation
