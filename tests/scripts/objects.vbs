' Lists of values, of vectors, and of objects: the script's own are copied, saved and loaded by their names.
Option Explicit
Dim checks

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Class Note
  Public Text
  Private heading

  Public Default Property Get Title()
    Title = heading
  End Property

  Public Property Let Title(value)
    heading = value
  End Property

  Public Function GetCopy()
    Dim copied
    Set copied = New Note
    copied.Text = Text
    Set GetCopy = copied
  End Function

  Public Sub SaveToBuffer(target, append)
    target.AddString Text
  End Sub

  Public Sub LoadFromBuffer(source, append)
    Text = source.NextString
  End Sub
End Class

Class Stranger
  Public Text
End Class

Dim list, memo, buffer, copy, vector
Set buffer = CreateObject("QZBase.CBuffer")
Set list = CreateObject("QZBase.CObjVector")
Set memo = New Note
memo.Text = "one"
list.AddObject list.GetUniqueKey("memo"), memo
list.AddObject list.GetUniqueKey("Memo"), memo
Set list.Ref(2) = memo
memo.Text = "two"
Check "keys", list.KeyVec.GetString
Check "a copy and the object itself", list.Ref(1).Text & " " & list.Ref(2).Text
list.ReplaceObject 1, "first", memo
Check "found", list.Index("FIRST") & " " & list.Index("none")
Set copy = list.GetCopy
copy.Key(2) = "kept"
copy.Ref(1).Text = "before loading"
list.SaveToBuffer buffer
copy.LoadFromBuffer buffer
Check "loaded", copy.Ref(1).Text & " under " & copy.Ref(1).Title & ", " & copy.Ref(2).Title & " at " & copy.Key(2)
list.DeleteObject 1
Check "deleted", list.Size & " " & list.Key(1)

Sub CheckFaults()
  On Error Resume Next
  list.AddObject "vector", CreateObject("QZBase.CDblVector")
  list.SaveToBuffer buffer
  Check "saved", Err.Number
  Err.Clear
  list.LoadFromBuffer buffer
  Check "no default member", Err.Number
  Err.Clear
  list.AddObject "stranger", New Stranger
  Check "cannot be copied", Err.Number & " " & list.Size
  Err.Clear
  list.AddObject "text", "text"
  Check "no object", Err.Number
  Err.Clear
  list.SaveToBuffer buffer
  Check "nothing to save", Err.Number
  Err.Clear
End Sub
CheckFaults

Set list = CreateObject("QZBase.CVector")
list.VarType = 2
list.AddValue "2.5"
list.AddValue 1
list.InsertValue 1
Check "values", list.GetString
list.Sort
Check "sorted", list.GetString
list.SaveToBuffer buffer
Set copy = list.GetCopy
copy.LoadFromBuffer buffer
Check "loaded as numbers", copy.Index(2.5) & " " & list.Index(2.5)
list.Value(2) = "x"

Sub CheckConversion()
  On Error Resume Next
  list.SaveToBuffer Nothing
  Check "no number, and no buffer", Err.Number
  Err.Clear
End Sub
CheckConversion

Set vector = CreateObject("QZBase.CDblVector")
vector.SetFromString "(1;2)"
Set list = CreateObject("QZBase.CDblVectors")
list.Size = 2
list.Vector(1) = vector
Set list.Vector(2) = vector
vector.AddValue 3
Check "let and set", list.Vector(1).GetString & " " & list.Vector(2).GetString
list.InsertVector vector, 1
list.DeleteVector 2
list.SaveToBuffer buffer
Set copy = CreateObject("QZBase.CDblVectors")
copy.LoadFromBuffer buffer
Check "loaded vectors", copy.Size & " " & copy.VectorRef(2).GetString & " " & copy.IsEqual(list)
WScript.Echo "done " & checks
