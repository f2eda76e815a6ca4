' Values that carry their descriptors, and the list of these.
Option Explicit
Dim checks, info, newer, descs, desc, buffer

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Set desc = CreateObject("QZBase.TEntryDesc")
Set info = CreateObject("QZBase.CTypedInfo")
desc.ID = "Count"
desc.VarType = 3
info.AddInfo desc, 2.7
desc.ID = "Title"
desc.VarType = 4
info.AddInfo desc, "x"
Check "infos", info.NrInfos & " " & info.Index("title") & " " & info.DescRef(1).ID & " " & info.Desc(2).VarType
info.SetValue "TITLE", "y"
info.Value(1) = 1.5
Check "values", info.GetValue("count") & info.Value(2) & "(" & info.GetValue("none") & ")"

Set descs = info.DescsRef.GetCopy
Set descs.Desc(1) = desc
desc.ID = "Text"
Check "set", descs.DescRef(1).ID & " " & (descs.DescRef(1) Is desc) & " " & (descs.Desc(1) Is desc)
descs.Desc(2) = desc
Check "let", descs.DescRef(2).ID & " " & (descs.DescRef(2) Is desc)
Check "inserted at", descs.InsertDesc(info.DescRef(2), 99)
Set newer = CreateObject("QZBase.CTypedInfo")
newer.SetupFrom descs
newer.UpdateFrom info
Check "updated", IsEmpty(newer.Value(1)) & " " & newer.Value(3)

Set buffer = CreateObject("QZBase.CBuffer")
info.SaveToBuffer buffer
newer.LoadFromBuffer buffer
Check "loaded", newer.GetValue("Count") & newer.GetValue("Title") & " " & newer.IsEqual(info)
On Error Resume Next
newer.SetValue "none", 1
Check "no such identifier", Err.Number
Err.Clear
descs.AddDesc Nothing
Check "no descriptor", Err.Number
WScript.Echo "done " & checks
