' Names of files, and a small tree of directories that is made, listed and removed.
Option Explicit
Dim checks, util, names, dates, shell, folder, name, file
Set util = CreateObject("QZBase.GCFileUtil")
Set names = CreateObject("QZBase.CStrVector")
Set dates = CreateObject("QZBase.CDblVector")

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

name = "C:\data\run#07.dat"
Check "parts", util.GetPath(name) & " " & util.GetFileNameRoot(name) & " " & util.GetFileNameIndex(name) & " " & util.GetExtn(name)
Check "stripped", util.StripPath(name) & " " & util.StripExtn(name) & " " & util.StripFileNameIndex("run#07") & " " & name
Check "indexed", util.IndexedFileName(name, 12) & " " & util.IndexedFileName("run.dat", 0)
Check "directory", util.PathToDir("C:\data\") & " " & util.PathToDir("D:")
Check "valid", util.FileNameValid(name) & " " & util.FileNameValid("a*b")

Set shell = CreateObject("WScript.Shell")
folder = shell.ExpandEnvironmentStrings("%TEMP%")
folder = Left(folder, InStr(folder & Chr(0), Chr(0)) - 1) & "\qzbase-script"
Check "made", util.MakeDir(folder) & " " & util.MakeDir(folder & "\") & " " & util.MakeDir(folder & "\sub")
Check "parent missing", util.MakeDir(folder & "\a\b")
Check "exist", util.PathExists(folder & "\") & " " & util.FileExists(folder) & " " & util.PathExists("C:\")
Set file = CreateObject("Scripting.FileSystemObject").CreateTextFile(folder & "\sub\run1.dat", True)
file.Close
util.GetDirContents folder, "*.DAT", True, names, dates
Check "listed", names.Size & " " & Mid(names.Value(1), Len(folder) + 1) & " " & (Abs(dates.Value(1) - CDbl(Now)) < 1)
util.GetDirContents folder, "", False, names, dates
Check "not below", names.Size & " " & dates.Size
Check "not empty", util.DelDir(folder & "\sub")
util.DeleteFile folder & "\sub\*.*"
Check "deleted", util.FileExists(folder & "\sub\run1.dat")
Check "removed", util.DelDir(folder & "\sub") & " " & util.DelDir(folder) & " " & util.PathExists(folder)

On Error Resume Next
util.GetDirContents folder, "", False, Nothing, dates
Check "no vector", Err.Number
Err.Clear
WScript.Echo "done " & checks
