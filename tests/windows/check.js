// What the scripts of the tests share. It is put before each of them, as JScript has no way to include a file.
var passed = 0;
var failed = 0;

// The first lines in which two texts differ.
function difference(actual, expected) {
  var is = String(actual).split("\n");
  var should = String(expected).split("\n");
  for (var i = 0; is[i] === should[i] && i < is.length; ++i) {
  }
  var line = is.length + should.length > 2 ? " in line " + (i + 1) : "";
  return line + "\n  is:       " + String(is[i]).substr(0, 300) + "\n  expected: " + String(should[i]).substr(0, 300);
}

// A value is what it should be; its type counts.
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

// The result that a call fails with, as "0x80020005"; "ok" if it succeeds.
function resultOf(call) {
  try {
    call();
    return "ok";
  } catch (error) {
    return "0x" + (error.number >>> 0).toString(16).toUpperCase();
  }
}

var boxes = new ActiveXObject("PlotsmithTest.Boxes");

// The script hosts of Wine keep the class object of what they create, so that its DLL stays; this one doesn't.
function newController() {
  return boxes.Create("Plotsmith.CPlotsmithController");
}
