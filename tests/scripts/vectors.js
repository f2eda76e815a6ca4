// Vectors, buffers and errors as the other script language sees them.
var checks = 0;

function check(name, value) {
  ++checks;
  WScript.Echo(name + ": " + value);
}

function checkError(name, action) {
  try {
    action();
    check(name, "no error");
  } catch (e) {
    check(name, (e.number & 0xFFFF) + " | " + e.description);
  }
}

var vector = new ActiveXObject("QZBase.CDblVector");
vector.SetFromArray([3, 1, 2.5]);
check("array in", vector.GetString());
vector.Sort();
check("sorted", vector.GetString());
vector.Value(2) = 9;
check("indexed let", vector.Value(2) + " of " + vector.Size);
vector.Size = 2;
check("size", vector.GetString());
vector.InsertValue(1);
check("default", vector.Value(1));
check("name in another case", vector.getstring() === vector.GetString());

var copy = vector.GetCopy();
check("copy", copy.IsEqual(vector) + " " + (copy == vector));

var texts = new ActiveXObject("QZBase.CStrVector");
texts.SetFromArray(["a", 2, true]);
check("texts", texts.Size + " " + texts.Value(2));

var buffer = new ActiveXObject("QZBase.CBuffer");
vector.SaveToBuffer(buffer);
copy.Size = 0;
copy.LoadFromBuffer(buffer);
check("loaded", copy.IsEqual(vector));
buffer.Clear();
buffer.AddObject("text");
buffer.ResetPos();
check("value", buffer.NextObject(4));

checkError("index outside", function () { return "" + vector.Value(99); });
checkError("unset object", function () { vector.CopyFrom(null); });
checkError("an object of another class", function () { vector.CopyFrom(buffer); });
checkError("wrong type", function () { vector.AddValue("x"); });
checkError("registered error", function () { new ActiveXObject("QZBase.GCError").Throw(1003, "150 [0;100]"); });
WScript.Echo("done " + checks);
