// Tests the lifetime of the component, and that it leaves nothing behind.
var examples = WScript.Arguments(1) + "\\";
var kProduct = "Brindle Plotsmith [OK]: ";
var kAtWork = kProduct + "CPlotsmithController.RefreshPlotsmithData\\r\\n" +
    "Plotsmith is still working on an earlier call. Call it again when that call has returned.";

function open(name) {
  var host = new ActiveXObject("PlotsmithTestHost.Application");
  host.Open(examples + name);
  return host;
}

// The DLL is unloaded with its last object, and loaded again.
function unload(name) {
  CollectGarbage();
  boxes.FreeUnusedLibraries();
  check(name + ": the DLL is unloaded", boxes.IsLoaded("Plotsmith.dll"), false);
}

check("at first", boxes.IsLoaded("Plotsmith.dll"), false);
newController();
check("with an object", boxes.IsLoaded("Plotsmith.dll"), true);
unload("an object that was not called");

(function() {
  var host = open("countries.xlsx");
  var controller = newController();
  controller.RefreshPlotsmithData(host, "Add-in", "");
  boxes.FreeUnusedLibraries();
  check("with a used object", boxes.IsLoaded("Plotsmith.dll"), true);
})();
unload("after a refresh");

(function() {
  var host = open("countries.xlsx");
  newController().RefreshChartsForTable(host, "VEX_TableRange_Countries");
})();
unload("after a refresh of a table, which keeps its workbook");

// Two Applications one after the other: the workbook of each is refreshed. The component changes properties of the
// Application only in the first one.
function linesOf(journal, ofApplication) {
  var lines = journal.split("\n");
  var chosen = [];
  for (var i = 0; i < lines.length; ++i) {
    if ((lines[i].indexOf("Application.") === 0) === ofApplication) chosen.push(lines[i]);
  }
  return chosen.join("\n");
}
(function() {
  var controller = newController();
  var first = open("countries.xlsx");
  controller.RefreshPlotsmithData(first, "Add-in", "");
  var alone = first.Journal;
  var second = open("countries.xlsx");
  controller.RefreshPlotsmithData(second, "Other", "");
  check("the second Application's workbook", linesOf(second.Journal, false), linesOf(alone, false));
  var kAsked = "Application.Interactive = False\nApplication.Interactive = True";
  check("the second Application", linesOf(second.Journal, true), kAsked);
  var added = first.Journal.substr(alone.length);
  check("the first Application", kAsked + "\n" + added, linesOf(alone, true) + "\n");
})();
unload("after two Applications");

// A macro of the host calls the component during the refresh, and releases the controller.
function journalWithoutMacros() {
  var host = open("countries.xlsx");
  newController().RefreshPlotsmithData(host, "Add-in", "");
  return host.Journal;
}
var plain = journalWithoutMacros();
unload("after a refresh without macros");
(function() {
  var host = open("countries.xlsx");
  var started = [];
  var loaded = [];
  boxes.Window();
  host.DefineMacro("VEXEvents.VEXChartRefreshStarted", function(id) {
    started.push(id === undefined ? "all" : id + " " + boxes.WindowIsEnabled());
    if (id === undefined) newController().RefreshPlotsmithData(host, "Add-in", "");
    boxes.Release();
    boxes.FreeUnusedLibraries();
    loaded.push(boxes.IsLoaded("Plotsmith.dll"));
  });
  check("released during the run", boxes.Refresh(host), "ok");
  check("macros", started.join(", "), "all, VEX_Chart1 false, VEX_Chart2 false");
  check("under a run", loaded.join(), "true,true,true");
  check("calling back", boxes.Take(), kAtWork);
  check("the window afterwards", boxes.WindowIsEnabled(), true);
  check("the refresh continues", host.Journal, plain);
})();
unload("after a macro");

// Another thread, and too little stack.
(function() {
  var controller = newController();
  controller.RefreshPlotsmithData(open("countries.xlsx"), "Add-in", "");
  check("another thread", boxes.RefreshOnOtherThread(), "ok\n" + kProduct +
      "CPlotsmithController.RefreshPlotsmithData\\r\\nPlotsmith can only be called on the thread that called it first.");
  function refresh() { controller.RefreshPlotsmithData(open("countries.xlsx"), "Add-in", ""); }
  boxes.WithStackOf(200, refresh);
  check("200 KB of stack", boxes.Take(),
      kProduct + "CPlotsmithController.RefreshPlotsmithData\\r\\nOut of stack space");
  boxes.WithStackOf(400, refresh);
  check("400 KB of stack", boxes.Take(), "");
})();

// The wizard nests pages until the stack is exhausted. Then it ends with a report.
(function() {
  var controller = newController();
  var host = open("countries.xlsx");
  boxes.PressEachPage("frmPSSelectAction cmdNew frmPSSelectTable cmdBack");
  boxes.WithStackOf(400, function() { controller.RunPlotsmith(host, "Add-in", ""); });
  var presses = boxes.StopPressing();
  check("a long walk on 400 KB of stack", presses > 20 && presses < 490, true);
  check("a long walk on 400 KB of stack: boxes", boxes.Take().replace(/ of [^:]*/, ""),
      kProduct + "PSController.PSJumpToStep\\r\\nOut of stack space");
  boxes.PlayScript("page frmPSSelectAction\npress cmdNew\npage frmPSSelectTable\npress cmdCancel\npage none\n");
  controller.RunPlotsmith(host, "Add-in", "");
  check("a short walk", boxes.FinishScript(), "\n");
})();
unload("after another thread");

// A thousand runs, on a workbook with a chart of each of several families.
(function() {
  var host = new ActiveXObject("PlotsmithTestHost.Application");
  host.Open(WScript.Arguments(2));
  var controller = newController();
  function leftAfter(runs) {
    for (var run = 0; run < runs; ++run) controller.RefreshPlotsmithData(host, "Add-in", "");
    CollectGarbage();
    return boxes.Resources() + ", " + host.LiveObjects + " objects of Excel";
  }
  var before = leftAfter(3);
  check("the counts", /^([1-9]\d* [\w ]+(, |$)){4}$/.test(before), true);
  check("a thousand runs", leftAfter(Number(WScript.Arguments(4))), before);
  check("a thousand runs: boxes", boxes.Take(), "");
})();
unload("after a thousand runs");
finish();
