' Translations: texts, messages, and a form and its controls that are a script's own objects.
Option Explicit
Dim checks, resource, errors, ranges, root, node, copy, buffer, win, box, one, two

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Class Window
  Public Name
  Public Caption
  Public Property Get Controls()
    Set Controls = New ControlList
  End Property
End Class

Class ControlList
  Public Property Get Count()
    Count = 3
  End Property
  Public Default Property Get Item(pIndex)
    If pIndex = 0 Then Set Item = box
    If pIndex = 1 Then Set Item = one
    If pIndex = 2 Then Set Item = two
  End Property
End Class

Class ListBox
  Public Name
  Public Text
  Public Property Let List(pIndex, pText)
    Text = pIndex & "=" & pText
  End Property
End Class

Class OptionButton
  Public Name
  Public Index
  Public Caption
End Class

Function Texts(text)
  Dim vector
  Set vector = CreateObject("QZBase.CStrVector")
  vector.AddValue text
  Set Texts = vector
End Function

Sub AddControl(name, id, value)
  Dim control
  Set control = CreateObject("QZBase.CLocalGUI")
  control.ID = name
  control.AddProperty "Missing", "x"
  control.AddProperty id, value
  node.AddChild control
End Sub

Set resource = CreateObject("QZBase.GCResource")
Set errors = CreateObject("QZBase.GCError")
Set ranges = CreateObject("QZBase.GCStrings")
Check "unknown", resource.LocalizedString("To") & " " & resource.LocalizedString("To", "until")
resource.SetLocalizedStrings Texts("To" & Chr(0) & "bis"), Texts("System" & Chr(0) & "Stop" & Chr(0) & "Abbruch")
Check "known", resource.LocalizedString("To", "until") & ", " & ranges.HumanReadable("[1;2]")
Check "message", errors.ErrorMessage(1007)

Set root = resource.LocalizedGUI
root.NrChildren = 1
Set node = root.Child(1)
node.ID = "Main"
node.AddProperty "Caption", "Haupt"
AddControl "List1", "List(2)", "Blau"
AddControl "Option1_2", "Caption", "Zwei"
Check "found", node.FindChild("option1", "2").ID & " " & resource.LocalizedGUI.ChildIndex("MAIN")
Check "not found", (node.FindChild("Option1", "") Is Nothing)

Set win = New Window
Set box = New ListBox
Set one = New OptionButton
Set two = New OptionButton
win.Name = "Main"
box.Name = "List1"
one.Name = "Option1"
one.Index = 1
two.Name = "Option1"
two.Index = 2
resource.LocalizeForm win
Check "form", win.Caption & ", " & box.Text & ", " & one.Caption & ", " & two.Caption

Set buffer = CreateObject("QZBase.CBuffer")
root.SaveToBuffer buffer
Set copy = CreateObject("QZBase.CLocalGUI")
copy.LoadFromBuffer buffer
Check "loaded", copy.Child(1).Child(2).ID & " " & copy.Child(1).PropertyValueByID("caption")

On Error Resume Next
resource.SetLocalizedStrings Texts("To" & Chr(0) & "nach"), Texts("")
Check "another text", Err.Number & " " & Err.Description
Err.Clear
resource.SetLocalizedStrings Texts("New" & Chr(0) & "neu"), Nothing
Check "no messages", Err.Number & " " & resource.LocalizedString("New")
Err.Clear
resource.SetGUIProperty box, "Missing", "x"
Check "no property", Err.Number
Err.Clear
Set copy = root.Child(2)
Check "no child", Err.Number
Err.Clear
root.AddChild Nothing
Check "nothing", Err.Number
WScript.Echo "done " & checks
