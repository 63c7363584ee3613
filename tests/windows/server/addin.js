// Tests the host add-in of the examples with the test's Excel and with macros that show progress.
var examples = WScript.Arguments(1) + "\\";
var progress = [];

function newHost(book) {
  var host = new ActiveXObject("PlotsmithTestHost.Application");
  host.Open(examples + book);
  host.DefineMacro("VEXEvents.VEXChartRefreshStarted", function(id) {
    progress.push("started" + (id === undefined ? "" : " " + id));
  });
  host.DefineMacro("VEXEvents.VEXChartRefreshComplete", function() { progress.push("complete"); });
  return host;
}

function progressOf(call) {
  progress = [];
  call();
  return progress.join(", ");
}

var host = newHost("countries.xlsx");
var addIn = new PlotsmithAddIn(host);
check("refresh", progressOf(function() { addIn.refresh(); }), "started, started VEX_Chart1, started VEX_Chart2, complete");
var journal = host.Journal;
check("refresh: the journal", journal.length > 1000, true);
check("refresh a table", progressOf(function() { addIn.refreshTable("VEX_TableRange_Countries"); }),
    "started, started VEX_Chart1, started VEX_Chart2, complete");
check("refresh another table", progressOf(function() { addIn.refreshTable("Data5"); }), "started, complete");
check("boxes", boxes.Take(), "");

// A workbook that is closed and opened again is a different one, so all its charts are refreshed first.
host.Open(examples + "countries.xlsx");
var kAll = "started, started VEX_Chart1, started VEX_Chart2, complete";
check("another workbook", progressOf(function() { addIn.refreshTable("VEX_TableRange_Countries"); }), kAll + ", " + kAll);
check("another workbook: the journal", host.Journal.indexOf(journal), 0);
var twice = host.Journal;
check("the same workbook", progressOf(function() { addIn.refreshTable("VEX_TableRange_Countries"); }), kAll);
check("the same workbook: the journal", host.Journal.length > twice.length, true);
check("boxes of another workbook", boxes.Take(), "");
boxes.PlayScript("page frmPSSelectAction\npress cmdCancel\npage none\n");
addIn.charts();
check("the wizard", boxes.FinishScript(), "\n");
finish();
