// The members of the text room: tokens, words and names.
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
    method<&GCStrings::GetChar>("GetChar", {"InVal", "Pos"}, "The character at a position, or nothing."));

}  // namespace qzbase::automation
