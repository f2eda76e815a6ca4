' The error registry, and how registered errors and the runtime's own arrive in a script.
Option Explicit
Dim errors, record, checks
Set errors = CreateObject("QZBase.GCError")

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Sub CheckError(name)
  Check name, Err.Number & " | " & Err.Source & " | " & Err.Description
  Err.Clear
End Sub

' Where the words are the script host's.
Sub CheckNumber(name)
  Check name, Err.Number
  Err.Clear
End Sub

Check "built-in errors", errors.NrRegisteredErrors
Check "position by module and identifier", errors.ErrIndex("Format", "InvRange")
Check "position by identifier", errors.ErrIndex("", "Stop")
Check "no position", errors.ErrIndex("Format", "Missing")
Check "message", errors.ErrorMessage(1001)

record = errors.RegisterError("Script", "NoPaper", "Out of paper")
Check "registered", errors.NrRegisteredErrors
Check "its number", errors.ErrCode(record)
Check "its identifier", errors.ErrID(record)
Check "its module", errors.ErrModule(record)
Check "its position", errors.ErrIndex("Script", "NoPaper")
errors.UpdateErrMessage 11, "No paper left"
Check "its new message", errors.ErrorMessage(errors.ErrCode(record))

record = errors.EDesc(3)
errors.SetEDesc 11, record
Check "a record handed back", errors.ErrorMessage(1011) & " " & errors.ErrID(errors.RegisterError("Script", "Other", "Another"))

On Error Resume Next
errors.SetServerId "Script host"
errors.Throw 1003, "7"
CheckError "thrown"
errors.SetAddErrInfo "8"
errors.Throw 1003
CheckError "thrown with information set before"
errors.Throw 0
CheckError "number 0"
errors.UpdateErrMessage 99, "nothing"
CheckError "position outside"
errors.NoSuchMember
CheckNumber "no such member"
errors.Throw
CheckNumber "too few arguments"
errors.Throw 1, "2", 3
CheckNumber "too many arguments"
errors.Throw "no number"
CheckError "argument of a wrong type"
WScript.Echo "done " & checks
