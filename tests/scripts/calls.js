// How the other script language calls the library, and its objects in the library's hands.
var checks = 0;
var asked = [];

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
vector.SetFromArray([3, , 2.5]);
check("array in", vector.GetString());
vector.Value(2) = 9;
check("indexed let", vector.Value(2) + " of " + vector.Size);
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

var errors = new ActiveXObject("QZBase.GCError");
errors.SynchErrors({
  ErrIndex: function (pModule, pID) { asked.push(pModule + "." + pID); return 1; },
  NrRegisteredErrors: function () { return 0; }
});
check("asked for", asked.length + " " + asked[0] + " " + asked[9]);
checkError("a host that fails", function () {
  errors.SynchErrors({ ErrIndex: function () { throw new Error(0x800A04D2, "words"); } });
});
checkError("null", function () { errors.SynchErrors(null); });
checkError("no object", function () { errors.SynchErrors(5); });
checkError("index outside", function () { return "" + vector.Value(99); });
checkError("an object of another class", function () { vector.CopyFrom(buffer); });
checkError("wrong type", function () { vector.AddValue("x"); });
checkError("registered error", function () { errors.Throw(1003, "150 [0;100]"); });
WScript.Echo("done " + checks);
