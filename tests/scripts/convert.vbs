' Values to texts and back: by type, by descriptor, and what the checks say.
Option Explicit
Dim convert, entry, numbers, values, moment, checks
Set convert = CreateObject("QZBase.GCConvert")

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Sub CheckError(name)
  Check name, Err.Number & " " & Err.Description
  Err.Clear
End Sub

Check "number", convert.DoubleToString(1234.5) & " " & convert.DoubleToString(1234.5, "0.00") & " " & _
  convert.DoubleToString("2", , False)
Check "figures", convert.DoubleToString(1234.5, "SF3") & " " & convert.DoubleToStringSF(0, 3)
Check "words", convert.BoolToString(True, "{Yes;No}") & " " & convert.EnumToString(2, "{Off;Low;High}") & " " & _
  convert.ColorToString(255)
Check "no value", convert.ValueToString(Empty, 2, "") & " " & convert.StrInvalid & " " & _
  convert.InvalidValue(3) & " " & convert.DateToString(0)
Check "types", convert.VarTypeToString(2) & " " & convert.StringToVarType("integer") & " " & _
  convert.CnvQZVarType("integer") & " " & convert.TypeIsNumeric(3)
Check "locale", convert.WindowsDecimalDelim & " " & convert.WindowsThousandDelim & " " & _
  convert.WindowsDateFormat & " " & convert.WindowsTimeFormat
Check "texts", convert.StringToDouble("1.5") & " " & convert.StringToLong("7") & " " & _
  convert.StringToBool("yes", "{Yes;No}") & " " & convert.StringToEnum("Low", "{Off;Low}")
Check "no number", convert.IsNumber("1,5") & " " & convert.StringToLong("x") & " " & _
  (convert.StringToDouble("x") = convert.InvalidValue(2))
moment = convert.StringToDate("28.11.31 20:15", "DD.MM.YY HH:NN")
Check "date", TypeName(moment) & " " & convert.DateToString(moment, "yyyy-mm-dd hh:nn") & " " & _
  convert.TimeToString(moment, "hh")

Set entry = CreateObject("QZBase.TEntryDesc")
entry.VarType = 2
entry.Range = "[0;10] 'auto'"
entry.OutFormat = "0.0"
convert.CheckValueED "auto", entry
Check "by descriptor", convert.ValueToStringVD(2.25, entry.VarDesc) & " " & _
  convert.StringToValueVD("2.25", entry.VarDesc)

Set numbers = CreateObject("QZBase.CDblVector")
numbers.SetFromString "(1.5;2)"
Set values = convert.DblVectorToVector(numbers)
Check "vector of values", values.VarType & " " & values.Size & " " & values.Value(1)
values.Value(2) = "x"
Check "vector of doubles", convert.VectorToDblVector(values).GetString

On Error Resume Next
Check "comma in a format", convert.CheckNrOutFormat("0,0")
entry.Range = "[0;1]"
convert.CheckValueED "5", entry
CheckError "out of range"
convert.CheckValue "~", 2, "", "", , , False
Check "no value where one is needed", Err.Number
Err.Clear
convert.CheckLong "1.5"
Check "no integer", Err.Number
Err.Clear
moment = convert.DoubleToString(1, "SF999999")
Check "too many figures", Err.Number
Err.Clear
convert.CheckValueED "5", Nothing
Check "no descriptor", Err.Number
Err.Clear
WScript.Echo "done " & checks
