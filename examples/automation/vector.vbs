' Measurements in a vector, their statistics, and the whole saved into a buffer and read back.
' Run it by: cscript //nologo vector.vbs
Option Explicit
Dim series, math, mean, deviation, buffer, copy

Set series = CreateObject("QZBase.CDblVector")
series.SetFromArray Array(315.71, 317.45, 317.51, 315.86)
series.Sort
WScript.Echo "sorted: " & series.GetString

Set math = CreateObject("QZBase.GCMath")
mean = 0
deviation = 0
math.CalcMean series, mean, deviation
WScript.Echo "mean: " & mean & ", highest: " & series.Max

Set buffer = CreateObject("QZBase.CBuffer")
series.SaveToBuffer buffer
Set copy = CreateObject("QZBase.CDblVector")
copy.LoadFromBuffer buffer
WScript.Echo "saved in " & buffer.Size & " bytes, read back: " & copy.IsEqual(series)

On Error Resume Next
WScript.Echo series.Value(1000)
WScript.Echo "error " & Err.Number & " of " & Err.Source & ": " & Err.Description
