' How a script calls the library: objects by name, Set and Let, variables that are changed, arguments left out, arrays,
' dates, records that are handed on, and errors.
Option Explicit
Dim checks, errors, math, strings, base, vector, other, list, record, name, made, a, b, items, result

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

' The words of some errors are the script host's.
Sub CheckNumber(name)
  Check name, Err.Number
  Err.Clear
End Sub

Sub CheckError(name)
  Check name, Err.Number & " | " & Err.Source & " | " & Err.Description
  Err.Clear
End Sub

For Each name In Split("GCError GCMath GCStrings GCConvert CBuffer GCRegistry TVarDesc TCtrlDesc TEntryDesc CVarDescs " & _
    "CEntryDescs CTypedInfo CDblVector CLngVector CStrVector CBoolVector CVector CObjVector CDblVectors CDblMatrix " & _
    "CMatrix CEntryData CTable CLayoutGraph CLayoutGraph3D CLayoutTable GCBase GCFileUtil GCResource CLocalGUI")
  ' Some hosts call it by its interface, with an underscore.
  If Replace(TypeName(CreateObject("QZBase." & name)), "_", "") = name Then made = made + 1
Next
Check "classes made by name", made
Set errors = CreateObject("QZBase.GCError")
Set math = CreateObject("qzbase.gcmath")
Set strings = CreateObject("QZBase.GCStrings")
Set base = CreateObject("QZBase.GCBase")
Set vector = CreateObject("QZBase.CDblVector")

' An object has one identity, a let copies and a set shares.
vector.setfromstring "(1;2)"
Set other = vector
other.Value(2) = 9
Check "one object, two names", vector.GetString & " " & (other Is vector) & " " & (vector.GetCopy Is vector)
Set list = CreateObject("QZBase.CDblVectors")
list.Size = 2
list.Vector(1) = vector
Set list.Vector(2) = vector
vector.AddValue 3
Check "let and set", list.Vector(1).GetString & " " & list.Vector(2).GetString & " " & (list.VectorRef(2) Is vector)

' Variables are passed by reference.
a = 4
Check "increment", math.Inc(a) & " " & a & " " & TypeName(a)
b = "left"
math.Swap a, b
Check "swapped", a & " " & b & " " & TypeName(a) & " " & TypeName(b)
a = 0
Check "results in variables", math.CalcMean(vector, a, b) & " " & (a > 4.3) & " " & TypeName(b)
a = "one;two;three"
Check "text cut", strings.GetNextToken(a, ";") & " " & a
Check "expression", strings.GetNextToken("x" & ";y", ";")
base.FullOSInfo a, b, result
Check "texts filled in", a & " " & (InStr(b, ".") > 1) & " " & VarType(result)

' Arguments that are left out, at the end and between others.
Check "left out", base.NewVarDesc("V", 3, , "m").GetString
vector.InsertValue 1
Check "left out at the end", vector.Value(1)

' Arrays: a script's own hold variants; what comes back in them can be handed on.
a = Array(3, "1", 2.5)
vector.SetFromArray a
Check "array", vector.GetString & " " & TypeName(a(1))
vector.SetFromArray Array(5, 6)
Check "array made in place", vector.GetString
ReDim items(0)
result = strings.ParseString("a;b;c", ";", items)
Set other = CreateObject("QZBase.CStrVector")
other.SetFromArray items
Check "array filled in", result & " " & other.GetString & " " & strings.MakeEnumRange(items, "none")
other.SetFromArray vector.GetArray
Check "array of another type", other.Value(1) & " " & IsArray(vector.GetArray)

' Dates, colours and bytes keep their kind.
Set other = CreateObject("QZBase.CBuffer")
other.AddDate DateSerial(2020, 1, 2)
other.AddObject DateSerial(2021, 3, 4)
other.AddByte 200
other.ResetPos
a = other.NextDate
b = other.NextObject(5)
Check "dates", TypeName(a) & " " & Year(a) & " " & TypeName(b) & " " & Month(b) & " " & other.NextByte
Set result = CreateObject("QZBase.CBuffer")
result.ByteArray = other.ByteArray
Check "bytes handed over", result.BinaryEqual(other)
Set result = CreateObject("QZBase.GCConvert")
Check "locale", result.WindowsDecimalDelim & " " & result.WindowsDateFormat & " " & result.DoubleToString("1.5") & " " & _
  result.DateToString(DateSerial(2020, 1, 2), "yyyy-mm-dd")

' Script hosts cannot look into records, but hand them on.
record = errors.RegisterError("Script", "NoPaper", "Out of paper")
Check "record", errors.ErrCode(record) & " " & errors.ErrID(record) & " " & errors.ErrModule(record)
record = errors.EDesc(3)
errors.SetEDesc 11, record
Check "record put back", errors.NrRegisteredErrors & " " & errors.ErrorMessage(1011)
Set other = CreateObject("QZBase.CLayoutGraph")
record = other.DefaultCurveStyle(2)
other.CurveStyle(1) = record
Check "record as a property", other.IsEqual(CreateObject("QZBase.CLayoutGraph"))

On Error Resume Next
errors.SetServerId "Script host"
errors.Throw 1003, "7"
CheckError "thrown"
errors.Throw 0
CheckError "number 0"
errors.UpdateErrMessage 99, "nothing"
CheckError "position outside"
errors.Throw "no number"
CheckError "argument of a wrong type"
vector.CopyFrom Nothing
CheckError "nothing"
vector.CopyFrom errors
CheckError "another class"
a = 2147483647
b = math.Inc(a)
Check "a failed call changes nothing", Err.Number & " " & a & " " & TypeName(b)
Err.Clear
errors.NoSuchMember
CheckNumber "no such member"
vector.VarType = 3
CheckNumber "no such property"
errors.Throw
CheckNumber "too few arguments"
errors.Throw 1, "2", 3
CheckNumber "too many arguments"
Set list = Nothing
vector.AddValue "1.5"
Check "the library goes on", vector.Value(3)
WScript.Echo "done " & checks
