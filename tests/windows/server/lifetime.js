// Tests the lifetime of the component, and that it leaves nothing behind.
var examples = WScript.Arguments(1) + "\\";
var kProduct = "Brindle Plotsmith [OK]: ";
var kAtWork = kProduct + "CPlotsmithController.RefreshPlotsmithData\\r\\n" +
    "Plotsmith is still at work on an earlier call. Call it again when that has returned.";

function open(name) {
  var host = new ActiveXObject("PlotsmithTestHost.Application");
  host.Open(examples + name);
  return host;
}

// The DLL is unloaded with its last object, and loaded again.
function unload(name) {
  CollectGarbage();
  boxes.FreeUnusedLibraries();
  check(name + ": the DLL is gone", boxes.IsLoaded("Plotsmith.dll"), false);
}

check("at first", boxes.IsLoaded("Plotsmith.dll"), false);
newController();
check("with an object", boxes.IsLoaded("Plotsmith.dll"), true);
unload("an object that nobody called");

(function() {
  var host = open("countries.xlsx");
  var controller = newController();
  controller.RefreshPlotsmithData(host, "Add-in", "");
  boxes.FreeUnusedLibraries();
  check("with an object that was called", boxes.IsLoaded("Plotsmith.dll"), true);
})();
unload("after a refresh");

(function() {
  var host = open("countries.xlsx");
  newController().RefreshChartsForTable(host, "VEX_TableRange_Countries");
})();
unload("after a refresh of a table, which keeps its workbook");

// Two Applications, one after the other: the workbook of each is refreshed.
(function() {
  var controller = newController();
  var first = open("countries.xlsx");
  controller.RefreshPlotsmithData(first, "Add-in", "");
  var alone = open("electricity.xlsx");
  newController().RefreshPlotsmithData(alone, "Add-in", "");
  var journal = first.Journal;
  var second = open("countries.xlsx");
  controller.RefreshPlotsmithData(second, "Other", "");
  check("the second Application", second.Journal.replace(/Application[^\n]*\n/g, ""),
      journal.replace(/Application[^\n]*\n/g, ""));
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
  check("released under the run", boxes.Refresh(host), "ok");
  check("macros", started.join(", "), "all, VEX_Chart1 false, VEX_Chart2 false");
  check("under a run", loaded.join(), "true,true,true");
  check("calling back", boxes.Take(), kAtWork);
  check("the window afterwards", boxes.WindowIsEnabled(), true);
  check("the refresh goes on", host.Journal, plain);
})();
unload("after a macro");

// Another thread, and too little stack.
(function() {
  var controller = newController();
  controller.RefreshPlotsmithData(open("countries.xlsx"), "Add-in", "");
  check("another thread", boxes.RefreshOnOtherThread(), "ok\n" + kProduct +
      "CPlotsmithController.RefreshPlotsmithData\\r\\nPlotsmith belongs to the thread that has called it first.");
  function refresh() { controller.RefreshPlotsmithData(open("countries.xlsx"), "Add-in", ""); }
  boxes.WithStackOf(200, refresh);
  check("200 KB of stack", boxes.Take(),
      kProduct + "CPlotsmithController.RefreshPlotsmithData\\r\\nOut of stack space");
  boxes.WithStackOf(400, refresh);
  check("400 KB of stack", boxes.Take(), "");
})();
unload("after another thread");

// A thousand runs.
(function() {
  var host = open("countries.xlsx");
  var chartless = open("data\\orders.xlsx");
  var controller = newController();
  function handlesAfter(runs) {
    for (var run = 0; run < runs; ++run) {
      controller.RefreshPlotsmithData(run % 20 === 0 ? host : chartless, "Add-in", "");
    }
    CollectGarbage();
    return boxes.Handles() + " handles, " + host.LiveObjects + " objects";
  }
  var before = handlesAfter(3);
  check("a thousand runs", handlesAfter(1000), before);
})();
unload("after a thousand runs");
finish();
