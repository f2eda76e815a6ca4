' The tagged buffer: what is written comes back, as itself and as bytes.
Option Explicit
Dim buffer, other, bytes, checks
Set buffer = CreateObject("QZBase.CBuffer")

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Check "empty", buffer.Size
buffer.AddTag "ab"
buffer.AddLong 7
Check "a tag and a long", buffer.Size
buffer.AddString "text"
buffer.AddDouble 1.5
buffer.AddDate DateSerial(2020, 1, 2)
buffer.AddBoolean True
buffer.AddByte 200
buffer.AddColor 255
buffer.AddObject "value"
buffer.AddObject 3, 2
buffer.AddData Array(1, 2, 3)
Check "all records", buffer.Size

buffer.ResetPos
Check "tag", buffer.NextTag
Check "long", buffer.NextLong
Check "text", buffer.NextString
Check "double", buffer.NextDouble
Check "date", Year(buffer.NextDate)
Check "boolean", buffer.NextBoolean
Check "byte", buffer.NextByte
Check "colour", buffer.NextColor
Check "value", buffer.NextObject(4)
Check "value of a type", buffer.NextObject(2)
bytes = buffer.NextData
Check "bytes", IsArray(bytes)

Set other = CreateObject("QZBase.CBuffer")
other.ByteArray = buffer.ByteArray
Check "bytes handed over", other.Size & " " & other.BinaryEqual(buffer) & " " & (other.CheckSum = buffer.CheckSum)
other.AddLong 1
Check "a record more", other.BinaryEqual(buffer)
Set other = buffer.GetCopy
Check "a copy", other.BinaryEqual(buffer) & " " & (other Is buffer)
other.Clear
other.CopyFrom buffer
Check "copied into", other.Size = buffer.Size

On Error Resume Next
buffer.ResetPos
bytes = buffer.NextLong
Check "another record", Err.Number & " | " & Err.Description
Err.Clear
Check "the record is still there", buffer.NextTag
buffer.AddByte 256
Check "no byte", Err.Number
Err.Clear
buffer.ByteArray = Array(1, "x")
Check "no bytes", Err.Number
Err.Clear
WScript.Echo "done " & checks
