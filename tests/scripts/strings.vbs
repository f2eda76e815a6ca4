' Tokens, lines, words, units, name indices and range strings; texts and arrays that the library changes.
Option Explicit
Dim strings, text, position, items, values, list, count, checks
Set strings = CreateObject("QZBase.GCStrings")

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Check "unit off", strings.StripUnit("Temperature [degC]") & "|"
Check "unit on", "Temperature" & strings.FormatUnit("degC") & "|" & strings.FormatUnit("") & "|"
Check "name index", strings.GetNameIndex("Channel007") & " " & strings.IndexFormat("007")
Check "name root", strings.GetNameRoot("Channel007")
Check "replace", strings.StrReplace("aaa", "a", "aa")
Check "replace word", strings.ReplaceWord("x xx x", "x", "y")
Check "replace delimiter", strings.NrDelimReplace("1,5 a,b", ",", ".")
Check "character", strings.GetChar("abc", 2) & "|" & strings.GetChar("abc", 4) & "|"

text = "one;two;three"
Check "token", strings.GetNextToken(text, ";") & " " & text
Check "without token", strings.StripFirstToken(text, ";") & " " & text
text = "first" & vbCrLf & "second" & vbCr
position = 1
Check "line", strings.GetNextLine(text, position) & " " & position

ReDim items(0)
count = strings.ParseString("a;b;c", ";", items)
Set list = CreateObject("QZBase.CStrVector")
list.SetFromArray items
Check "items", count & " " & list.GetString

Check "enumeration", strings.MakeEnumRange(items) & " " & strings.MakeEnumRange(items, "none")
strings.InitEnumRange text
text = text & "x;y;"
strings.FinalizeEnumRange text
count = strings.ParseEnumRange(text, items)
list.SetFromArray items
Check "enumeration read", text & " " & count & " " & list.GetString
Check "position and item", strings.EnumOrd("y", text) & " " & strings.EnumVal(1, text)
Check "kinds", strings.IsMember("Y", text) & " " & strings.IsList(text) & " " & strings.IsCombo("{1;*}")
ReDim values(0)
Set list = CreateObject("QZBase.CDblVector")
count = strings.ParseValueList("{1;2.5}", values)
list.SetFromArray values
Check "values", count & " " & list.GetString & " " & strings.MakeValueList(values)
Check "valid", strings.CheckRangeStringValid("{[0;1];[5;6]}") & " " & (strings.CheckRangeStringValid("[1;0]") > 0)
Check "in words", strings.HumanReadable("{[0;1];[5;6]}")
Check "in range", strings.IsInRange(0.3, "[0;1]", "0.1") & " " & strings.IsInRange(0.35, "[0;1]", "0.1")

On Error Resume Next
position = 0
text = strings.GetNextLine("x", position)
Check "line from 0", Err.Number & " " & position
Err.Clear
text = strings.GetChar("abc", "two")
Check "position that is no number", Err.Number
Err.Clear
text = strings.IsInRange(1, "[0;1]", "1E-320")
Check "step too small", Err.Number
Err.Clear
WScript.Echo "done " & checks
