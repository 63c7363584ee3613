// Common functions of the test scripts. It is included before each script, because JScript can't include files.
var passed = 0;
var failed = 0;

// Returns the first lines in which two texts differ.
function difference(actual, expected) {
  var is = String(actual).split("\n");
  var should = String(expected).split("\n");
  for (var i = 0; is[i] === should[i] && i < is.length; ++i) {
  }
  var line = is.length + should.length > 2 ? " in line " + (i + 1) : "";
  return line + "\n  is:       " + String(is[i]).substr(0, 300) + "\n  expected: " + String(should[i]).substr(0, 300);
}

// Checks a value and its type.
function check(name, actual, expected) {
  if (actual === expected) {
    ++passed;
    return;
  }
  ++failed;
  WScript.Echo("FAILED: " + name + difference(actual, expected));
}

function finish() {
  WScript.Echo(passed + " passed, " + failed + " failed");
}

// Returns the result code of a failed call, such as "0x80020005", or "ok".
function resultOf(call) {
  try {
    call();
    return "ok";
  } catch (error) {
    return "0x" + (error.number >>> 0).toString(16).toUpperCase();
  }
}

var boxes = new ActiveXObject("PlotsmithTest.Boxes");

// Makes an object without keeping its class object. Wine's script hosts keep it, so that the DLL stays loaded.
function newController() {
  return boxes.Create("Plotsmith.CPlotsmithController");
}
