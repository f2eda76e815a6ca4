' The two matrices: rows and columns, rows as objects of their own, sorting, saving.
Option Explicit
Dim checks

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Function Text(matrix)
  Dim i
  Text = matrix.NrCols & " columns"
  For i = 1 To matrix.NrRows
    Text = Text & " " & matrix.RowRef(i).GetString
  Next
End Function

Sub CheckMatrix(name, element1, element2)
  Dim matrix, copy, row
  Set matrix = CreateObject("QZBase." & name)
  matrix.NrRows = 2
  matrix.NrCols = 2
  matrix.Value(1, 1) = element1
  matrix.Value(2, 1) = 1
  matrix.Value(1, 2) = element2
  matrix.Value(2, 2) = 2
  Check name, Text(matrix)
  matrix.Sort 1
  Check name & " sorted", Text(matrix) & ", " & matrix.Value(1, 1) & " first"
  matrix.Sort 1, False
  matrix.InsertCol 3
  matrix.DeleteCol 1
  Check name & " other columns", Text(matrix)
  matrix.AddRow matrix.Row(1)
  matrix.RowRef(3).AddValue 4
  matrix.InsertRow 1
  matrix.Row(1) = matrix.Row(3)
  matrix.InverseRowOrder
  matrix.DeleteRow 3
  Check name & " other rows", Text(matrix)
  matrix.Col(1) = matrix.RowRef(1)
  Check name & " column", matrix.Col(1).GetString
  Set row = matrix.RowRef(2)
  row.Value(1) = 7
  Check name & " one row, two names", matrix.Value(1, 2) & " " & (row Is matrix.RowRef(2))
  Set copy = matrix.GetCopy
  Check name & " copy", copy.IsEqual(matrix) & " " & (copy.RowRef(2) Is row)
  CheckFaults name, matrix
End Sub

Sub CheckFaults(name, matrix)
  On Error Resume Next
  Dim value
  value = matrix.Value(1, 99)
  Check name & " no such row", Err.Number
  Err.Clear
  matrix.DeleteRow 0
  Check name & " nothing to delete", Err.Number
  Err.Clear
  matrix.AddRow Nothing
  Check name & " no row to add", Err.Number
  Err.Clear
End Sub

Dim numbers, loaded, buffer
CheckMatrix "CDblMatrix", 2.5, 1.5
CheckMatrix "CMatrix", "B", "a"

Set numbers = CreateObject("QZBase.CDblMatrix")
numbers.NrCols = 2
numbers.NrRows = 1
numbers.Value(2, 1) = 0.5
Set buffer = CreateObject("QZBase.CBuffer")
numbers.SaveToBuffer buffer
Set loaded = CreateObject("QZBase.CDblMatrix")
loaded.LoadFromBuffer buffer
Check "loaded", Text(loaded) & " " & loaded.IsEqual(numbers)
WScript.Echo "done " & checks
