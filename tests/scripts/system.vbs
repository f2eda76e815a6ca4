' Services of the system: facts, the clock and its waits, and a script's own objects as displays, debug window and font.
Option Explicit
Dim checks, base, errors, guid, id, version, service, style, label, list, font, other, stamp

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Class TextLabel
  Public Caption
  Public Text
End Class

Class ListBox
  Public Height
  Public TopIndex
  Public FontName
  Public FontSize
  Public Lines
  Public Count

  Public Property Get ListCount()
    ListCount = Count
  End Property

  Public Sub AddItem(pLine)
    Lines = Lines & pLine & ";"
    Count = Count + 1
  End Sub

  Public Sub RemoveItem(pIndex)
    Lines = Mid(Lines, InStr(Lines, ";") + 1)
    Count = Count - 1
  End Sub
End Class

Class ScriptFont
  Public Name
  Public Size
  Public Bold
  Public Italic
  Public Underline
  Public Strikethrough
End Class

Set base = CreateObject("QZBase.GCBase")
Set errors = CreateObject("QZBase.GCError")
guid = base.GetGUID
Check "guid", Len(base.GUIDString(guid)) & " " & (base.GUIDString(guid) = base.GetGUIDString)
Check "bytes", base.IsBinaryEqual(Array(1, 2), Array(1, 2)) & " " & base.IsBinaryEqual(Array(1), Array(2)) & " " & base.IsBinaryEqual(Empty, Empty)
base.FullOSInfo id, version, service
Check "system", base.OperatingSystem & " " & id & " " & (InStr(version, ".") > 1) & " " & VarType(service)
Check "user", (Len(base.WindowsUserName) > 0) & " " & (Len(base.WindowsServerName) > 0) & " " & (base.WindowsLocalGroups.Size >= 0)
Check "sizes", base.SizeOf(123) & " " & base.SizeOf("123") & " " & base.SizeOf(Empty)

base.DebugMode = 3
Check "debug mode", base.DebugMode
base.WaitSecs 0.02
base.WaitUntil base.TimeInCentiSecs
base.SleepSecs 0.001
Check "waited", base.SystemWaiting & " " & base.CheckStopFlag
base.StopFlag = True
base.WaitSecs 60
stamp = base.ErrStop
Check "stopped", base.StopFlag & " " & (base.CheckStopFlag = errors.ErrCode(stamp)) & " " & errors.ErrID(stamp)
base.StopFlag = False
stamp = base.NewTimeStamp

Set label = New TextLabel
base.SetErrorDisplay label, 1
base.SetMsgDisplay label, 2
base.DisplayError "an error"
base.DisplayMessage "a message"
Check "displays", label.Caption & ", " & label.Text
base.DisplayError ""
Check "emptied", label.Caption & ", " & label.Text
base.SetErrorDisplay Nothing, 1
base.SetMsgDisplay Nothing, 1

Set list = New ListBox
list.Height = 800
list.FontName = "Arial"
list.FontSize = 8
base.SetDbgWindow list, 4
For id = 1 To 6
  base.ShowDebugLine "line " & id
Next
Check "debug lines", list.Lines & " from " & list.TopIndex
base.SetDbgWindow Nothing
base.ShowDebugLine "nowhere"
Check "no debug lines", list.Count

Check "style", base.SetFontStyle(True, False, True, True) & " " & base.IsBold(13) & " " & base.IsItalic(13) & " " & base.IsUnderlined(13) & " " & base.IsStriked(13)
Set font = New ScriptFont
Set other = New ScriptFont
font.Name = "Arial"
font.Size = 9.5
font.Bold = True
style = base.FontStyle(font)
base.SetFontFromFontStyle other, style
Check "font", other.Name & " " & other.Size & " " & other.Bold & " " & other.Italic
font.Strikethrough = True
style = base.LabelStyle(font, 255)
base.SetFontFromLabelStyle other, style
Check "label", other.Size & " " & other.Bold & " " & other.Strikethrough

On Error Resume Next
base.WaitSecs 30000000
Check "too long", Err.Number & " " & base.SystemWaiting
Err.Clear
style = base.FontStyle(Nothing)
Check "no font", Err.Number
Err.Clear
style = base.FontStyle(label)
Check "not a font", Err.Number
Err.Clear
WScript.Echo "done " & checks
