' Layouts of graphs and tables: records in and out, indices that are not there, saved and loaded.
Option Explicit
Dim checks, graph, other, surface, table, buffer, descs

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Set graph = CreateObject("QZBase.CLayoutGraph")
Check "new", graph.Border & " " & graph.BackColor & " " & graph.AxisMax(1) & " " & graph.NrCurveStyles
graph.Title = "Temperature"
graph.AxisCaption(2) = "degC"
graph.AxisIsLog(2) = True
graph.NrCurveStyles = 3
Check "axis", graph.AxisCaption(2) & " " & graph.AxisIsLog(2) & " " & graph.AxisIsLog(1)
Check "colours", graph.DefaultColor(1) & " " & graph.DefaultColor(12)

' Script hosts cannot look into a record, but hand it on.
Dim style
Set other = graph.GetCopy
style = graph.DefaultCurveStyle(2)
other.CurveStyle(1) = style
Check "another style", other.IsEqual(graph)
style = graph.CurveStyle(1)
other.CurveStyle(1) = style
Check "the same style", other.IsEqual(graph)

Set buffer = CreateObject("QZBase.CBuffer")
graph.SaveToBuffer buffer
Set other = CreateObject("QZBase.CLayoutGraph")
other.LoadFromBuffer buffer
Check "loaded", other.IsEqual(graph) & " " & other.Title

Set surface = CreateObject("QZBase.CLayoutGraph3D")
surface.MeshSpace(2) = 5
surface.Title = "Surface"
Check "surface", surface.GraphType & " " & surface.MeshSpace(2) & " " & surface.GetCopy.Title

Set table = CreateObject("QZBase.CLayoutTable")
Check "info", table.AddGenericInfo("7", 3, 42) & " " & table.GetGenericInfoValue(7, 0) & " " & table.GetGenericInfoValue(1, "none")
table.GenericInfoValue(7) = 43
Set descs = table.ColDescsRef
descs.Size = 2
Check "table", table.GetGenericInfoValue(7, 0) & " " & table.ColDescsRef.Size & " " & table.GetCopy.IsEqual(table)

On Error Resume Next
graph.LabelMode(4) = 1
Check "no such label", Err.Number
Err.Clear
surface.MeshShow(3) = True
Check "no such mesh", Err.Number
Err.Clear
graph.CopyFrom Nothing
Check "no layout", Err.Number
WScript.Echo "done " & checks
