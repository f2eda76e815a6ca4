' Buffers, numbers and texts in a section of the registry, which is removed in the end.
Option Explicit
Dim checks, registry, buffer, result
Const user = 1, section = "Software\QZBase script"
Set registry = CreateObject("QZBase.GCRegistry")
Set buffer = CreateObject("QZBase.CBuffer")

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Check "section", registry.REGCreateNewSection(user, section)
buffer.AddTag "ab"
buffer.AddLong 7
Check "buffer saved", registry.REGSaveBuffer(user, section, "Layout", buffer)
Check "buffer read", registry.REGGetBuffer(user, section, "LAYOUT").BinaryEqual(buffer)
Check "no buffer", registry.REGGetBuffer(user, section, "None").Size
Check "number", registry.REGSaveValue(user, section, "Key", 70000) & " " & registry.REGGetValue(user, section, "Key")
Check "no buffer either", registry.REGGetBuffer(user, section, "Key").Size
Check "text", registry.REGSaveValue(user, section, "Key", "abc") & " " & registry.REGGetValue(user, section, "Key")
Check "text with a zero", registry.REGSaveValue(user, section, "Key", "abc" & Chr(0)) & " " & registry.REGGetValue(user, section, "Key")
Check "double", registry.REGSaveValue(user, section, "Double", 1.5) & " " & IsEmpty(registry.REGGetValue(user, section, "Double"))
Check "section stays", registry.REGDeleteSection(user, section) <> 0
Check "deleted", registry.REGDeleteValue(user, section, "Key") & " " & IsEmpty(registry.REGGetValue(user, section, "Key"))

On Error Resume Next
result = registry.REGDeleteValue(user, section, "Key")
Check "deleted again", Err.Number
Err.Clear
result = registry.REGSaveBuffer(user, section, "Key", Nothing)
Check "not a buffer", Err.Number
Err.Clear
result = CreateObject("WScript.Shell").Run("reg.exe delete ""HKCU\" & section & """ /f", 0, True)
Check "removed", result & " " & registry.REGGetBuffer(user, section, "Layout").Size
WScript.Echo "done " & checks
