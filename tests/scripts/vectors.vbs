' The four typed vectors: what they have in common, and what each one has of its own.
Option Explicit
Dim checks

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Sub CheckVector(name, text, element)
  Dim vector, copy, buffer
  Set vector = CreateObject("QZBase." & name)
  vector.SetFromString text
  Check name & " text", vector.GetString
  Check name & " size", vector.Size
  Check name & " element", vector.Value(2)
  vector.Value(2) = element
  Check name & " let", vector.Value(2) & " at " & vector.Index(element)
  vector.AddValue element
  vector.InsertValue 1, element
  Check name & " added", vector.GetString & " from 3 at " & vector.Index(element, 3)
  vector.DeleteValue 1
  Check name & " deleted", vector.GetString
  Set copy = vector.GetCopy
  Check name & " copy", copy.IsEqual(vector) & " " & (copy Is vector)
  copy.Size = 1
  Check name & " shortened", copy.GetString & " " & copy.IsEqual(vector)
  copy.CopyFrom vector
  Check name & " copied into", copy.IsEqual(vector)
  Set buffer = CreateObject("QZBase.CBuffer")
  vector.SaveToBuffer buffer
  copy.Size = 0
  copy.LoadFromBuffer buffer
  Check name & " loaded", copy.GetString
  copy.SetFromArray vector.GetArray
  Check name & " from all slots", copy.Size >= vector.Size
  CheckFaults name, vector
End Sub

Sub CheckFaults(name, vector)
  On Error Resume Next
  Dim value
  value = vector.Value(99)
  Check name & " index outside", Err.Number
  Err.Clear
  value = vector.Value
  Check name & " no index", Err.Number
  Err.Clear
  value = vector.IsEqual(Nothing)
  Check name & " nothing", Err.Number
  Err.Clear
End Sub

Dim numbers, texts, array1, copy
CheckVector "CDblVector", "(1.5;2;3)", 9.25
CheckVector "CLngVector", "(1;2;3)", 9
CheckVector "CStrVector", "(a;b;c)", "z"
CheckVector "CBoolVector", "(0;0;0)", True

Set numbers = CreateObject("QZBase.CDblVector")
Check "type", numbers.VarType
numbers.SetFromArray Array(3, 1, 2)
numbers.Sort
Check "sorted", numbers.GetString
numbers.Sort False
Check "sorted down", numbers.GetString
Check "least, greatest, sum", numbers.Min & " " & numbers.Max & " " & numbers.Sum
Check "closest", numbers.ClosestIndex(1.2) & " " & numbers.ClosestIndex(1.2, 1, 2)
numbers.Sort
Check "closest on either side", numbers.ClosestLeftIndex(2.5) & " " & numbers.ClosestRightIndex(2.5)
numbers.InsertValue 1
Check "inserted without a value", numbers.Value(1) & " " & numbers.NrValid & " of " & numbers.Size
numbers.AddUniqueValue 3
numbers.AddUniqueValue 4
Check "unique", numbers.Size
numbers.BlockSize = 4
Check "elements after other blocks", numbers.Value(5)

Set texts = CreateObject("QZBase.CStrVector")
texts.SetFromArray Array("10", 9, "2")
texts.Sort
Check "texts sorted by their numbers", texts.GetString
texts.InsertValue 0
Check "texts inserted without a value", texts.Value(4) & " " & texts.NrValid

array1 = Array(5, 6)
numbers.SetFromArray array1
Check "array passed by reference", numbers.GetString & " " & array1(0)
ReDim array1(2)
array1(2) = 8
numbers.SetFromArray array1
Check "array of its own size", numbers.GetString
numbers.Size = 1
Set copy = numbers
copy.AddValue 1
Check "one object, two names", numbers.Size & " " & (copy Is numbers)
WScript.Echo "done " & checks
