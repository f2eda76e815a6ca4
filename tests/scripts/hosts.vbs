' A script's own objects in the hands of the library, which calls them by name.
Option Explicit
Dim errors, first, second, host, checks

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

' Another program's error registry. It knows one error of the library's, under a number of its own.
Class Registry
  Public Asked
  Public Registered
  Public Described

  Public Function ErrIndex(pModule, pID)
    Asked = Asked + 1
    If pModule = "Script" Or pID = "Stop" Then ErrIndex = 1 Else ErrIndex = 0
  End Function

  Public Function RegisterError(pModule, pID, pMsg, pAddInfo)
    Registered = Registered & pID & "/" & pAddInfo & " "
    RegisterError = 1
  End Function

  Public Function NrRegisteredErrors()
    NrRegisteredErrors = 1
  End Function

  Public Function EDesc(pIdx)
    EDesc = Described
  End Function
End Class

Class FailingRegistry
  Public Function ErrIndex(pModule, pID)
    Err.Raise 1234, "The script", "The script's own words"
  End Function
End Class

Class Stranger
  Public Function Name()
    Name = "stranger"
  End Function
End Class

' Of two errors of one name the library finds the first. The host describes the second one, so that the first one gets
' its number.
Set errors = CreateObject("QZBase.GCError")
first = errors.RegisterError("Script", "Same", "The same")
second = errors.RegisterError("Script", "Same", "The same")
Check "numbers", errors.ErrCode(first) & " " & errors.ErrCode(second)
Set host = New Registry
host.Described = errors.EDesc(12)
errors.SynchErrors host
Check "asked for", host.Asked
Check "registered", host.Registered
Check "numbers aligned", errors.ErrCode(first) & " " & errors.ErrCode(second)

On Error Resume Next
errors.SynchErrors New FailingRegistry
Check "a host that fails", Err.Number
Err.Clear
errors.SynchErrors New Stranger
Check "a member that is missing", Err.Number
Err.Clear
errors.SynchErrors Nothing
Check "nothing", Err.Number
Err.Clear
errors.SynchErrors "text"
Check "no object", Err.Number
Err.Clear
errors.SynchErrors errors
Check "the library's own object", Err.Number
Err.Clear
WScript.Echo "done " & checks
