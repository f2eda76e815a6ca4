' Rounding, logarithm, power, comparison and statistics; arguments that the library changes.
Option Explicit
Dim math, series, mean, deviation, a, b, n, checks
Set math = CreateObject("QZBase.GCMath")

Sub Check(name, value)
  checks = checks + 1
  WScript.Echo name & ": " & value
End Sub

Check "floor", math.Floor(2.7) & " " & math.Floor(-2.7)
Check "ceil", math.Ceil(2.1) & " " & math.Ceil(-2.5) & " " & math.Ceil(2)
Check "round", math.Round(2.5) & " " & math.Round(-2.5) & " " & math.Round("2.4")
Check "round up", math.RoundUp(2.341, 2)
Check "figures", math.RoundSigFigs(12345, 2)
Check "logarithm", math.Log10(1000)
Check "power", math.Round(math.Pow(2, 10))
Check "greater", math.Max(2, 3) & " " & math.Max("a", "b")
Check "lesser", math.Min(2, 3) & " " & math.Min(2.5, 2)
Check "pi", math.PI

n = 4
Check "increment", math.Inc(n) & " " & n
Check "decrement", math.Dec(n) & " " & n
a = "left"
b = 2
math.Swap a, b
Check "swap", a & " " & b & " " & TypeName(a) & " " & TypeName(b)

Set series = CreateObject("QZBase.CDblVector")
series.SetFromString "(2;4;4;4;5;5;7;9)"
mean = 0
deviation = 0
Check "statistics", math.CalcMean(series, mean, deviation) & " " & mean & " " & deviation

On Error Resume Next
a = math.Log10(0)
Check "logarithm of zero", Err.Number & " " & TypeName(a)
Err.Clear
a = math.ACos(1)
Check "arc cosine of one", Err.Number
Err.Clear
n = 2147483647
a = math.Inc(n)
Check "increment past the end", Err.Number & " " & n
Err.Clear
n = math.CalcMean(Nothing, mean, deviation)
Check "no vector", n & " " & Err.Number & " " & mean
Err.Clear
n = math.CalcMean(math, mean, deviation)
Check "an object of another class", Err.Number
Err.Clear
WScript.Echo "done " & checks
