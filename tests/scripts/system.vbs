' Services of the system: facts, the clock and its waits, and a script's own object as display and debug window.
Option Explicit
Dim checks, base, errors, id, version, service, record, control

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Class Control
  Public Caption
  Public Text
  Public Height
  Public TopIndex
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

Set base = CreateObject("QZBase.GCBase")
Set errors = CreateObject("QZBase.GCError")
record = base.GetGUID
Check "guid", Len(base.GUIDString(record)) & " " & (base.GUIDString(record) = base.GetGUIDString)
Check "bytes", base.IsBinaryEqual(Array(1, 2), Array(1, 2)) & " " & base.IsBinaryEqual(Array(1), Array(2)) & " " & base.IsBinaryEqual(Empty, Empty)
base.FullOSInfo id, version, service
Check "system", base.OperatingSystem & " " & id & " " & (InStr(version, ".") > 1) & " " & VarType(service)
Check "user", (Len(base.WindowsUserName) > 0) & " " & (base.WindowsLocalGroups.Size >= 0)
Check "sizes", base.SizeOf(123) & " " & base.SizeOf("123") & " " & base.SizeOf(Empty)

base.WaitSecs 0.02
Check "waited", base.SystemWaiting & " " & base.CheckStopFlag
base.StopFlag = True
base.WaitSecs 60
record = base.ErrStop
Check "stopped", base.StopFlag & " " & (base.CheckStopFlag = errors.ErrCode(record)) & " " & errors.ErrID(record)
base.StopFlag = False

Set control = New Control
base.SetErrorDisplay control, 1
base.DisplayError "an error"
base.SetMsgDisplay control, 2
base.DisplayMessage "a message"
Check "displays", control.Caption & ", " & control.Text
control.Height = 800
base.SetDbgWindow control, 4
For id = 1 To 6
  base.ShowDebugLine "line " & id
Next
Check "debug lines", control.Lines & " from " & control.TopIndex
Check "style", base.SetFontStyle(True, False, True, True) & " " & base.IsBold(13) & " " & base.IsItalic(13)

On Error Resume Next
base.WaitSecs 30000000
Check "too long", Err.Number & " " & base.SystemWaiting
Err.Clear
record = base.FontStyle(Nothing)
Check "no font", Err.Number
Err.Clear
record = base.FontStyle(control)
Check "not a font", Err.Number
WScript.Echo "done " & checks
