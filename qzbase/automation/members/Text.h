// The members of the text room: tokens, words, names, range strings, and values as texts.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CVector.h"
#include "qzbase/desc/TEntryDesc.h"
#include "qzbase/desc/TVarDesc.h"
#include "qzbase/text/GCConvert.h"
#include "qzbase/text/GCStrings.h"

namespace qzbase::automation {

template <>
inline constexpr auto members<GCStrings> = table(
    method<&GCStrings::StripUnit>("StripUnit", {"VarName"}, "A display name without its unit."),
    method<&GCStrings::FormatUnit>("FormatUnit", {"Unit"}, "The text of a unit to append to a display name."),
    method<&GCStrings::ParseString>("ParseString", {"Source", "delim", "Item"},
                                    "Splits a text at a delimiter and returns the number of items."),
    method<&GCStrings::GetNextLine>("GetNextLine", {byRef("Source"), "ActPos"},
                                    "The line that starts at a position, which moves behind it."),
    method<&GCStrings::StripFirstToken>("StripFirstToken", {"pSrc", "pDelim"}, "A text without its first token."),
    method<&GCStrings::GetNextToken>("GetNextToken", {"Source", "delim"}, "Takes the first token off a text."),
    method<&GCStrings::ReplaceWord>("ReplaceWord", {"pString", "pOld", "pNew"}, "Replaces a whole word everywhere."),
    method<&GCStrings::NrDelimReplace>("NrDelimReplace", {"Source", "OldDelim", "NewDelim"},
                                       "Replaces a delimiter where it stands between two digits."),
    method<&GCStrings::StrReplace>("StrReplace", {"Source", "OldStr", "NewStr"}, "Replaces a text everywhere."),
    method<&GCStrings::GetNameIndex>("GetNameIndex", {"Name"}, "The digits at the end of a name."),
    method<&GCStrings::IndexFormat>("IndexFormat", {"Index"},
                                    "A number format that keeps the leading zeros of an index."),
    method<&GCStrings::GetNameRoot>("GetNameRoot", {"Name"}, "A name without the digits at its end."),
    method<&GCStrings::GetChar>("GetChar", {"InVal", "Pos"}, "The character at a position, or nothing."),
    method<&GCStrings::InitEnumRange>("InitEnumRange", {"pRange"}, "Begins an enumeration."),
    method<&GCStrings::FinalizeEnumRange>("FinalizeEnumRange", {"pRange"}, "Ends an enumeration."),
    method<&GCStrings::MakeEnumRange>("MakeEnumRange", {byRef("Item"), opt("FirstItem", u"")},
                                      "The enumeration of an array of items."),
    method<&GCStrings::ParseEnumRange>("ParseEnumRange", {"Range", "Item"},
                                       "Splits an enumeration and returns the number of items."),
    method<&GCStrings::EnumOrd>("EnumOrd", {"Item", "Range"}, "The position of an item in an enumeration, or -1."),
    method<&GCStrings::EnumVal>("EnumVal", {"ItemNr", "Range"},
                                "The item at a position of an enumeration, or nothing."),
    method<&GCStrings::MakeValueList>("MakeValueList", {byRef("Value")}, "The list of an array of numbers."),
    method<&GCStrings::ParseValueList>("ParseValueList", {"List", "Value"},
                                       "Reads a list of numbers and returns how many there are."),
    method<&GCStrings::IsMember>("IsMember", {"Value", "Range"},
                                 "Whether a value is an item of an enumeration, ignoring case."),
    method<&GCStrings::IsList>("IsList", {"Range"}, "Whether a range lists single values and allows no others."),
    method<&GCStrings::IsCombo>("IsCombo", {"Range"}, "Whether a range lists single values and allows others."),
    method<&GCStrings::CheckRangeStringValid>("CheckRangeStringValid", {"Range"},
                                              "0 for a well-formed range, else an error number, not raised."),
    method<&GCStrings::HumanReadable>("HumanReadable", {"Range"}, "A range in words."),
    method<&GCStrings::IsInRange>("IsInRange", {"Value", "Range", "Step"},
                                  "Whether a number lies in an interval and on its steps."));

template <>
inline constexpr auto members<GCConvert> = table(
    method<&GCConvert::BoolToString>("BoolToString", {"pValue", "pFormat"}, "The word of a boolean."),
    method<&GCConvert::DateToString>("DateToString", {"pValue", opt("pFormat", u"")}, "The text of a date."),
    method<&GCConvert::TimeToString>("TimeToString", {"pValue", opt("pFormat", u"")}, "The text of a time."),
    method<&GCConvert::LongToString>("LongToString", {"pValue", opt("pFormat", u"")}, "The text of an integer."),
    method<&GCConvert::DoubleToString>("DoubleToString", {"pValue", opt("pFormat", u""), opt("pLocalize", true)},
                                       "The text of a number; \"SF3\" as format means three significant figures."),
    method<&GCConvert::DoubleToStringSF>("DoubleToStringSF", {"pValue", "pSigFigs"},
                                         "The text of a number, rounded to significant figures."),
    method<&GCConvert::ColorToString>("ColorToString", {"pValue"}, "The number of a colour."),
    method<&GCConvert::EnumToString>("EnumToString", {"pValue", "pFormat"}, "The item at a position of a format."),
    method<&GCConvert::ValueToString>("ValueToString", {"pValue", "pVarType", "pFormat", opt("pLocalize", true)},
                                      "The text of a value by its type."),
    method<&GCConvert::ValueToStringVD>("ValueToStringVD", {"pValue", "pVarDesc", opt("pLocalize", true)},
                                        "The text of a value by its descriptor."),
    method<&GCConvert::VarTypeToString>("VarTypeToString", {"pVarType"}, "The translated name of a value type."),
    method<&GCConvert::WindowsTimeFormat>("WindowsTimeFormat", "The locale's short time as a pattern."),
    method<&GCConvert::WindowsDateFormat>("WindowsDateFormat", "The locale's short date as a pattern."),
    method<&GCConvert::WindowsDecimalDelim>("WindowsDecimalDelim", "The locale's decimal delimiter."),
    method<&GCConvert::WindowsThousandDelim>("WindowsThousandDelim", "The locale's thousands delimiter."),
    method<&GCConvert::CheckNrOutFormat>("CheckNrOutFormat", {"pFormat"},
                                         "0, or an error number, not raised, for a number format with a comma."),
    get<&GCConvert::StrInvalid>("StrInvalid", "The text of no value."),
    method<&GCConvert::InvalidValue>("InvalidValue", {"pVarType"}, "The value that stands for none in a type."),
    method<&GCConvert::IsNumber>("IsNumber", {"pString"}, "Whether a text is a plain number."),
    method<&GCConvert::TypeIsNumeric>("TypeIsNumeric", {"pVarType"}, "Whether a type is one of numbers."),
    method<&GCConvert::CheckDouble>("CheckDouble", {"pValue", opt("pAllowInvalid", true), opt("pLocalized", true)},
                                    "Raises an error unless a text is a number."),
    method<&GCConvert::StringToDouble>("StringToDouble", {"pValue", opt("pLocalized", true)},
                                       "The number of a text, or the invalid double."),
    method<&GCConvert::CheckLong>("CheckLong", {"pValue", opt("pAllowInvalid", true)},
                                  "Raises an error unless a text is an integer."),
    method<&GCConvert::StringToLong>("StringToLong", {"pValue", opt("pFormat", u"")},
                                     "The integer of a text, or the invalid long."),
    method<&GCConvert::StringToBool>("StringToBool", {"pValue", opt("pFormat", u"")},
                                     "Whether a text is the word for true."),
    method<&GCConvert::StringToEnum>("StringToEnum", {"pValue", opt("pFormat", u"")},
                                     "The position of a text in a format, or -1."),
    method<&GCConvert::CheckDate>("CheckDate", {"pValue", opt("pAllowInvalid", true)},
                                  "Raises an error unless a text is a date."),
    method<&GCConvert::StringToDate>("StringToDate", {"pValue", "pFormat"}, "The date of a text, or day 0."),
    method<&GCConvert::CheckValue>("CheckValue",
                                   {"pValue", "pVarType", "pRange", "pStep", opt("pFormat", u""),
                                    opt("pLocalized", true), opt("pAllowInvalid", true)},
                                   "Raises an error unless a text is a value of a type and in a range."),
    method<&GCConvert::CheckValueED>("CheckValueED",
                                     {"pValue", "pDesc", opt("pLocalized", true), opt("pAllowInvalid", true)},
                                     "Raises an error unless a text is a value of an entry."),
    method<&GCConvert::StringToValue>("StringToValue",
                                      {"pValue", "pVarType", opt("pFormat", u""), opt("pLocalized", true)},
                                      "The value of a text by its type."),
    method<&GCConvert::StringToValueVD>("StringToValueVD", {"pValue", "pVarDesc", opt("pLocalized", true)},
                                        "The value of a text by its descriptor."),
    method<&GCConvert::StringToVarType>("StringToVarType", {"pValue"}, "The type of a translated name."),
    method<&GCConvert::CnvQZVarType>("CnvQZVarType", {"pString"}, "The type of an English name."),
    method<&GCConvert::IsBooleanRange>("IsBooleanRange", {"pRange"}, "Whether a range lists two words."),
    method<&GCConvert::IsEnumRange>("IsEnumRange", {"pRange"}, "Whether a range is a list."),
    method<&GCConvert::VectorToDblVector>("VectorToDblVector", {"pVector"}, "A vector of values as one of doubles."),
    method<&GCConvert::DblVectorToVector>("DblVectorToVector", {"pVector"}, "A vector of doubles as one of values."));

}  // namespace qzbase::automation
