// The members of the text room: tokens, words, names and range strings.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
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

}  // namespace qzbase::automation
