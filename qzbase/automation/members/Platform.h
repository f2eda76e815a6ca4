// The members of the platform services, and their records.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
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

template <>
inline constexpr auto members<GCBase> = table(FactoryRows());

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
