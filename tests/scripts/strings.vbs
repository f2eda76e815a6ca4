' Tokens, lines, words, units and name indices; texts and arrays that the library changes.
Option Explicit
Dim strings, text, position, items, list, count, checks
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

On Error Resume Next
position = 0
text = strings.GetNextLine("x", position)
Check "line from 0", Err.Number & " " & position
Err.Clear
text = strings.GetChar("abc", "two")
Check "position that is no number", Err.Number
Err.Clear
WScript.Echo "done " & checks
