// What the scripts of the tests share. It is put before each of them, as JScript has no way to include a file.
var passed = 0;
var failed = 0;

// A value is what it should be; its type counts.
function check(name, actual, expected) {
  if (actual === expected) {
    ++passed;
    return;
  }
  ++failed;
  WScript.Echo("FAILED: " + name + "\n  is:       " + actual + "\n  expected: " + expected);
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

function newController() {
  return new ActiveXObject("Plotsmith.CPlotsmithController");
}
