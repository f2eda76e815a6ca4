// A script's own objects in the hands of the library, which calls them by name.
var checks = 0;
var asked = [];

function check(name, value) {
  ++checks;
  WScript.Echo(name + ": " + value);
}

function numberOf(action) {
  try {
    action();
    return 0;
  } catch (e) {
    return e.number & 0xFFFF;
  }
}

var errors = new ActiveXObject("QZBase.GCError");
var registry = {
  ErrIndex: function (pModule, pID) { asked.push(pModule + "." + pID); return 1; },
  NrRegisteredErrors: function () { return 0; }
};
errors.SynchErrors(registry);
check("asked for", asked.length + " " + asked[0] + " " + asked[9]);
check("a host that fails", numberOf(function () {
  errors.SynchErrors({ ErrIndex: function () { throw new Error(0x800A04D2, "words"); } });
}));
check("null", numberOf(function () { errors.SynchErrors(null); }));
check("no object", numberOf(function () { errors.SynchErrors(5); }));
WScript.Echo("done " + checks);
