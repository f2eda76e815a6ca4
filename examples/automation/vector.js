// Measurements in a vector, and what an error of the library looks like.
// Run it by: cscript //nologo vector.js
var series = new ActiveXObject("QZBase.CDblVector");
series.SetFromArray([315.71, 317.45, 317.51, 315.86]);
series.AddValue(316.2);
series.Sort();
WScript.Echo("sorted: " + series.GetString());
WScript.Echo("nearest to 316: " + series.Value(series.ClosestIndex(316)));

try {
  series.AddValue("no number");
} catch (e) {
  WScript.Echo("error " + (e.number & 0xFFFF) + ": " + e.description);
}
