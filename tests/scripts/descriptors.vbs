' Descriptors of values, controls and entries, and the factories that make them.
Option Explicit
Dim checks, base, var, ctrl, entry, copy, buffer, marked

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Sub CheckNumber(name)
  Check name, Err.Number
  Err.Clear
End Sub

Set base = CreateObject("QZBase.GCBase")
Set buffer = CreateObject("QZBase.CBuffer")

Set var = CreateObject("QZBase.TVarDesc")
Check "new value", var.GetString
var.ID = "Temp"
var.Unit = "K"
var.VarType = 2
var.NrDims = "1"
Check "name", var.Name
var.Name = "Temperature"
Check "named", var.Name & " " & var.Unit & " " & var.VarType & " " & var.NrDims
Set copy = var.GetCopy
copy.Unit = "k"
Check "equal texts", copy.IsEqual(var)
var.SaveToBuffer buffer
Check "saved", var.Name & " " & buffer.Size

Set ctrl = CreateObject("QZBase.TCtrlDesc")
Check "new control", ctrl.GetString
ctrl.CtrlType = 99
ctrl.SaveMask = False
ctrl.Range = "[0;1]"
ctrl.UserDefined = True
Set copy = ctrl.GetCopy
copy.Range = ""
Check "control copied", copy.CtrlType & " " & copy.UserDefined & " " & copy.IsEqual(ctrl)

Set entry = base.NewEntryDesc("Temp", 2, "Temperature", "K", , "0.0", "[0;100]", "0.5")
Check "entry", entry.GetString
entry.UserDefined = True
entry.SaveToBuffer buffer
Check "entry saved", buffer.Size
Set copy = CreateObject("QZBase.TEntryDesc")
copy.LoadFromBuffer buffer
Check "entry loaded", copy.IsEqual(entry) & " " & copy.Name & " " & copy.UserDefined
Set copy.VarDesc = var
var.Tag = "shared"
Check "shared", copy.Tag & " " & (copy.VarDesc Is var)
Set copy = base.EntryDesc(var)
var.Tag = "other"
Check "not shared", copy.Tag & " " & copy.Width & " " & Len(copy.CtrlDesc.ID)

Check "vector entry", base.NewVectorDesc("V", 3).NrDims
Set marked = base.NewFormulaDesc("F", "Sum", 2, "A+B")
Check "formula", marked.Description & " " & marked.IsFormula & " " & marked.SaveMask & " " & marked.Removable
Check "value", base.NewVarDesc("V", 3, , "m").GetString
Check "control", base.NewCtrlDesc("C", 2).CtrlType
Check "vectors", base.Vector("1;2").Size & " " & base.LngVector(7).GetString & " " & base.DblVector(1.5).GetString & _
  " " & base.StrVector("a;b").GetString

On Error Resume Next
var.NrDims = 256
var.SaveToBuffer buffer
CheckNumber "too many dimensions"
buffer.Clear
buffer.AddLong 1
buffer.ResetPos
ctrl.LoadFromBuffer buffer
CheckNumber "no descriptor"
Set entry.CtrlDesc = Nothing
Check "no control part", entry.CtrlDesc Is Nothing
entry.Width = 5
CheckNumber "width without it"
base.NewVarDesc "V"
CheckNumber "too few arguments"
var.UserDefined = True
CheckNumber "for entries alone"
WScript.Echo "done " & checks
