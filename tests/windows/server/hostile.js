// Tests Applications with results that Excel never returns. Every operation ends with reports, and the call succeeds.
var kMismatch = "Type mismatch";
var kNoObject = "Object required";
var kNoMember = "Object doesn't support this property or method";
var kAtWork = "Plotsmith is still working on an earlier call. Call it again when that call has returned.";
// While charts are drawn, boxes are in front of the busy window.
var kBusy = "Brindle Plotsmith [OK] of Please Wait: ";
var kNoSheet = kBusy + "Unable to create the metadata worksheet";
var kTables = "PSFunctions.RetrieveTableDefinitions";
var kRefresh = "CPlotsmithController.RefreshPlotsmithData";

function report(procedure, description) {
  return "Brindle Plotsmith [OK]: " + procedure + "\\r\\n" + description;
}

// Returns the same report while charts are drawn.
function busyReport(procedure, description) {
  return kBusy + procedure + "\\r\\n" + description;
}

// Refreshes with its own Application, because no other one exists after the DLL is unloaded.
function refreshSays(name, host, boxesExpected) {
  check(name, resultOf(function() { newController().RefreshPlotsmithData(host, "Add-in", ""); }), "ok");
  check(name + ": boxes", boxes.Take(), boxesExpected.join("\n"));
  boxes.FreeUnusedLibraries();
  check(name + ": the DLL is unloaded", boxes.IsLoaded("Plotsmith.dll"), false);
}

// An Application that returns this as its workbook.
function withBook(name, workbook, description) {
  refreshSays(name, {ActiveWorkbook: workbook}, [report(kRefresh, description)]);
}

refreshSays("nothing at all", {}, [report(kRefresh, kNoMember)]);
withBook("Null for a workbook", null, kNoObject);
withBook("Empty for a workbook", undefined, kNoObject);
withBook("a number for a workbook", 5, kNoObject);
withBook("a text for a workbook", "book", kNoObject);
withBook("a function for a workbook", function() { throw new Error(5, "called"); }, kNoMember);
withBook("a workbook without members", {}, kNoMember);
withBook("Null for a Boolean", {ProtectStructure: null}, "Invalid use of Null");
withBook("a text for a Boolean", {ProtectStructure: "perhaps"}, kMismatch);
withBook("an object for a Boolean", {ProtectStructure: {}}, kMismatch);

// An Application that passes the guards, and whose workbook has these names and no sheets.
function withNames(names) {
  var nothing = {Count: 0};
  return {
    ActiveWorkbook: {ProtectStructure: false, MultiUserEditing: false, Names: names, Sheets: nothing, Worksheets: nothing},
    Interactive: true, Version: "16.0", ActiveChart: boxes.Nothing(), ScreenUpdating: true, Calculation: 1
  };
}

function namesSay(name, names, description) {
  refreshSays(name, withNames(names), description === null ? [kNoSheet] : [busyReport(kTables, description), kNoSheet]);
}

namesSay("no names", {Count: 0}, null);
namesSay("no number of names", {Count: "many"}, kMismatch);
namesSay("Null for a number", {Count: null}, "Invalid use of Null");
namesSay("fewer names than none", {Count: -1}, null);
namesSay("more names than there are", {Count: 3}, kNoMember);
namesSay("names that no object is", {Count: 1, Item: function() { return "name"; }}, kNoObject);
namesSay("names without members", {Count: 1, Item: function() { return {}; }}, kNoMember);
namesSay("Null for a text", {Count: 1, Item: function() { return {Name: null}; }}, "Invalid use of Null");
namesSay("an object without a default member for a text", {Count: 1, Item: function() { return {Name: boxes}; }}, kNoMember);
namesSay("an object with one", {Count: 1, Item: function() { return {Name: {length: 0}}; }}, null);
namesSay("names that throw", {Count: 1, Item: function() { throw new Error(5, "no name"); }},
    "Automation error\\r\\nCall failed.");

// Calls the component from a member that the component calls.
(function() {
  var controller = newController();
  var host = withNames({
    Count: 1,
    Item: function() {
      controller.RefreshPlotsmithData(host, "Add-in", "");
      controller.RefreshChartsForTable(host, "Data1");
      return {};
    }
  });
  controller.RefreshPlotsmithData(host, "Add-in", "");
  check("calling back", boxes.Take(), [
    busyReport(kRefresh, kAtWork), busyReport("CPlotsmithController.RefreshChartsForTable", kAtWork), busyReport(kTables, kNoMember),
    kNoSheet
  ].join("\n"));
  controller = host = null;
})();

// Releases all objects during the run.
(function() {
  var controller = newController();
  var host = withNames({
    Count: 1,
    Item: function() {
      host.ActiveWorkbook = host.Interactive = host = controller = null;
      CollectGarbage();
      boxes.FreeUnusedLibraries();
      return {};
    }
  });
  controller.RefreshPlotsmithData(host, "Add-in", "");
  check("letting go", boxes.Take(), [busyReport(kTables, kNoMember), kNoSheet].join("\n"));
})();
boxes.FreeUnusedLibraries();

// Tests an Excel in which one member returns a result that Excel never returns, for every member that a refresh calls:
// sheets, ranges, cells, names, shapes, charts, series, axes. All failures are reported, and the component works
// afterwards.
var book = WScript.Arguments(3);
var kFaults = ["throws", "Null", "Empty", "Nothing", "a number", "a text", "an array", "another object", "calls back"];

function faultyHost(way, fault, callback) {
  var host = new ActiveXObject("PlotsmithTestHost.Application");
  host.Open(book);
  if (way) host.SetFault(way, fault, callback);
  return host;
}

// Returns the texts of the boxes in a refresh with a faulty member.
function refreshWithFault(way, fault) {
  var controller = newController();
  var host = faultyHost(way, fault, function() { controller.RefreshPlotsmithData(host, "Add-in", ""); });
  var result = resultOf(function() { controller.RefreshPlotsmithData(host, "Add-in", ""); });
  host.SetFault("", "");  // the callback would keep the host
  if (result !== "ok") return "the call fails with " + result;
  return boxes.Take();
}

// A call back is refused, and doesn't disturb the running operation.
function isAtWork(box) {
  return box.replace(" of Please Wait", "") === report(kRefresh, kAtWork);
}

// The only allowed texts: reports of procedures, and sentences for the user.
function isSaid(box) {
  return /^Brindle Plotsmith \[OK\]( of Please Wait)?: (\w+\.\w+\\r\\n.|[A-Z].*\.$|Unable to )/.test(box);
}

var untouched = faultyHost();
newController().RefreshPlotsmithData(untouched, "Add-in", "");
check("without faulty members", boxes.Take(), "");
var plain = untouched.Journal;
var members = untouched.WaysCalled.split("\n");
untouched = null;
// Two faults for each member, different ones for the next member: all faults for each member would take too
// long.
(function() {
  var runs = 0;
  var reported = 0;
  for (var i = 0; i < 2 * (members.length - 1); ++i) {
    var member = members[Math.floor(i / 2)];
    var fault = kFaults[(Math.floor(i / 2) + 4 * (i % 2)) % kFaults.length];
    var said = refreshWithFault(member, fault);
    ++runs;
    reported += said === "" ? 0 : 1;
    var shown = said === "" ? [] : said.split("\n");
    for (var k = 0; k < shown.length; ++k) {
      if (!isSaid(shown[k])) check(member + ", " + fault, shown[k], "a report");
      if (fault === "calls back" && !isAtWork(shown[k])) check(member + ", " + fault, shown[k], kAtWork);
    }
  }
  WScript.Echo(runs + " runs, " + reported + " reported");
  check("members that a refresh calls", members.length > 80, true);
  check("reports of faulty members", reported > 80, true);
})();
CollectGarbage();
boxes.FreeUnusedLibraries();
check("the DLL is unloaded", boxes.IsLoaded("Plotsmith.dll"), false);

// The component still works after all of this.
(function() {
  var host = faultyHost();
  newController().RefreshPlotsmithData(host, "Add-in", "");
  check("after all", boxes.Take(), "");
  check("after all runs: the journal", host.Journal, plain);
})();
finish();
