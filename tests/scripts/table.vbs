' A table: described columns, rows that follow when they are sorted, one row as a record; and the grid inside it.
Option Explicit
Dim checks, table, desc, data, copy, buffer, row

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Function Text(table)
  Text = Replace(table.GetString, vbLf, "/")
End Function

Function NewDesc(id, varType, outFormat)
  Set NewDesc = CreateObject("QZBase.TEntryDesc")
  NewDesc.ID = id
  NewDesc.VarType = varType
  NewDesc.OutFormat = outFormat
End Function

Set table = CreateObject("QZBase.CTable")
table.ID = "Elements"
Set desc = NewDesc("Name", 4, "")
table.AddCol desc
table.InsertCol NewDesc("Density", 2, "0.00"), 9
table.NrRows = 2
table.Value(1, 1) = "Iron"
table.Value(2, 1) = 7.874
table.Value(1, 2) = "Aluminium"
table.AddRow
Check "rows", Text(table)
desc.ID = "Metal"
Check "descriptors", table.ColDescRef(1).ID & " " & (table.ColDescRef(1) Is desc) & " " & table.ColDesc(2).NrDims
Set table.ColDesc(1) = NewDesc("Element", 4, "")
table.ColDesc(2) = NewDesc("Weight", 2, "0.0")
Check "set and let", Text(table) & " " & table.ColIndex("WEIGHT")
table.Sort 1
table.InverseRowOrder
table.DeleteRow 3
Check "sorted", Text(table)
Set row = table.Row(2)
row.SetValue "Weight", 7.9
Check "a row", row.GetValue("element") & " " & row.GetValue("Weight") & " " & table.Value(2, 2)
table.MoveCol 2, 1
table.DescsRef.DescRef(1).ID = "Both"
Check "moved", table.NrCols & " " & table.ColRef(2).GetString & " " & table.ColDescRef(2).ID

Set buffer = CreateObject("QZBase.CBuffer")
Set copy = CreateObject("QZBase.CTable")
table.SaveToBuffer buffer
copy.LoadFromBuffer buffer
Check "loaded", copy.ID & " " & copy.IsEqual(table) & " " & copy.GetCopy.IsEqual(table)
copy.CopyFromInfo row
Check "from a record", Text(copy)
copy.SetupFrom table.DescsRef
Check "from descriptors", copy.NrCols & " " & copy.NrRows

Set data = CreateObject("QZBase.CEntryData")
data.AddCol 3
data.InsertCol 4, 1
data.AddRow
data.InsertRow 1
Check "invalid values", data.Col(1).GetString & data.Col(2).GetString
data.Value(2, 2) = 5
data.Sort 2, False
Set data.Col(1) = data.Col(2)
Check "one column, two places", data.Value(1, 1) & " " & (data.Col(1) Is data.Col(2))
data.VarType(1) = 2
data.NrCols = 3
Check "another type", data.VarType(1) & " " & IsEmpty(data.Value(1, 1)) & " " & data.Value(2, 1)

On Error Resume Next
row = data.Value(3, 1)
Check "no column", Err.Number
Err.Clear
table.AddCol Nothing
Check "no descriptor", Err.Number
Err.Clear
table.DeleteCol 0
Check "no such column", Err.Number
WScript.Echo "done " & checks
