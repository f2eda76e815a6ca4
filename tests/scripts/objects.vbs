' A script's own objects in the hands of the library, which calls them by name: as error registry, elements of a list,
' forms with controls, displays.
Option Explicit
Dim errors, base, first, second, host, list, memo, buffer, copy, resource, win, box, one, two, node, id, checks

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Sub CheckNumber(name)
  Check name, Err.Number
  Err.Clear
End Sub

' Another program's error registry. It knows one error of the library's, under a number of its own.
Class Registry
  Public Asked
  Public Registered
  Public Described

  Public Function ErrIndex(pModule, pID)
    Asked = Asked + 1
    If pModule = "Script" Or pID = "Stop" Then ErrIndex = 1 Else ErrIndex = 0
  End Function
  Public Function RegisterError(pModule, pID, pMsg, pAddInfo)
    If pAddInfo Then Registered = Registered & pID & " "
    RegisterError = 1
  End Function
  Public Function NrRegisteredErrors()
    NrRegisteredErrors = 1
  End Function
  Public Function EDesc(pIdx)
    EDesc = Described
  End Function
End Class

Class FailingRegistry
  Public Function ErrIndex(pModule, pID)
    Err.Raise 1234, "The script", "The script's own words"
  End Function
End Class

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
    Set GetCopy = New Note
    GetCopy.Text = Text
  End Function
  Public Sub SaveToBuffer(target, append)
    target.AddString Text
  End Sub
  Public Sub LoadFromBuffer(source, append)
    Text = source.NextString
  End Sub
End Class

Class Control
  Public Name
  Public Index
  Public Caption
  Public Text
  Public Height
  Public TopIndex
  Public ListCount
  Public Property Let List(pIndex, pText)
    Text = pIndex & "=" & pText
  End Property
  Public Sub AddItem(pLine)
    Text = Text & pLine & ";"
    ListCount = ListCount + 1
  End Sub
  Public Sub RemoveItem(pIndex)
    Text = Mid(Text, InStr(Text, ";") + 1)
    ListCount = ListCount - 1
  End Sub
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

' Of two errors of one name the library finds the first. The host describes the second one, so that the first one gets
' its number.
Set errors = CreateObject("QZBase.GCError")
first = errors.RegisterError("Script", "Same", "The same")
second = errors.RegisterError("Script", "Same", "The same")
Check "numbers", errors.ErrCode(first) & " " & errors.ErrCode(second)
Set host = New Registry
host.Described = errors.EDesc(12)
errors.SynchErrors host
Check "asked for and registered", host.Asked & " " & host.Registered
Check "numbers aligned", errors.ErrCode(first) & " " & errors.ErrCode(second)

' A list copies, saves and loads what it holds; a set shares.
Set buffer = CreateObject("QZBase.CBuffer")
Set list = CreateObject("QZBase.CObjVector")
Set memo = New Note
memo.Text = "one"
list.AddObject "memo", memo
list.AddObject list.GetUniqueKey("Memo"), memo
Set list.Ref(2) = memo
memo.Text = "two"
Check "a copy and the object itself", list.Ref(1).Text & " " & list.Ref(2).Text & " " & (list.Ref(2) Is memo)
Set copy = list.GetCopy
copy.Ref(1).Text = "before loading"
list.SaveToBuffer buffer
copy.LoadFromBuffer buffer
Check "loaded", copy.Ref(1).Text & " under " & copy.Ref(1).Title & ", " & copy.Ref(2).Text & " under " & copy.Ref(2)

' A form is translated through its controls, which are members of a collection and may have an index.
Sub AddControl(name, id, value)
  Dim control
  Set control = CreateObject("QZBase.CLocalGUI")
  control.ID = name
  control.AddProperty "Missing", "x"
  control.AddProperty id, value
  node.AddChild control
End Sub

Sub Found(control, name, index)
  control.Name = name
  If index > 0 Then control.Index = index
End Sub

Set resource = CreateObject("QZBase.GCResource")
resource.LocalizedGUI.NrChildren = 1
Set node = resource.LocalizedGUI.Child(1)
node.ID = "Main"
node.AddProperty "Caption", "Haupt"
AddControl "List1", "List(2)", "Blau"
AddControl "Option1_2", "Caption", "Zwei"
Check "not found", (node.FindChild("Option1", "") Is Nothing)
Set win = New Control
Set box = New Control
Set one = New Control
Set two = New Control
Found win, "Main", 0
Found box, "List1", 0
Found one, "Option1", 1
Found two, "Option1", 2
resource.LocalizeForm win
Check "form", win.Caption & ", " & box.Text & ", " & one.Caption & ", " & two.Caption

' Displays.
Set base = CreateObject("QZBase.GCBase")
Set box = New Control
base.SetErrorDisplay box, 1
base.DisplayError "an error"
base.SetMsgDisplay box, 2
base.DisplayMessage "a message"
Check "displays", box.Caption & ", " & box.Text
Set box = New Control
box.Height = 800
base.SetDbgWindow box, 4
For id = 1 To 6
  base.ShowDebugLine "line " & id
Next
Check "debug lines", box.Text & " from " & box.TopIndex

On Error Resume Next
errors.SynchErrors New FailingRegistry
CheckNumber "a host that fails"
errors.SynchErrors New Note
CheckNumber "a member that is missing"
errors.SynchErrors Nothing
CheckNumber "nothing"
errors.SynchErrors "text"
CheckNumber "no object"
errors.SynchErrors errors
CheckNumber "the library's own object"
list.AddObject "stranger", New Registry
Check "cannot be copied", Err.Number & " " & list.Size
Err.Clear
resource.SetGUIProperty memo, "Missing", "x"
CheckNumber "no property"
id = base.FontStyle(box)
CheckNumber "not a font"
WScript.Echo "done " & checks
