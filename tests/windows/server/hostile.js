// Applications that answer what no Excel does. Every operation ends in reports, and the call succeeds.
var kMismatch = "Type mismatch";
var kNoObject = "Object required";
var kNoMember = "Object doesn't support this property or method";
var kNoSheet = "Brindle Plotsmith [OK]: Unable to create the metadata worksheet";
var kTables = "PSFunctions.RetrieveTableDefinitions";
var kRefresh = "CPlotsmithController.RefreshPlotsmithData";

function report(procedure, description) {
  return "Brindle Plotsmith [OK]: " + procedure + "\\r\\n" + description;
}

// Refreshes with an Application of its own, as no other remains once the DLL is gone.
function refreshSays(name, host, boxesExpected) {
  check(name, resultOf(function() { newController().RefreshPlotsmithData(host, "Add-in", ""); }), "ok");
  check(name + ": boxes", boxes.Take(), boxesExpected.join("\n"));
  boxes.FreeUnusedLibraries();
  check(name + ": the DLL is gone", boxes.IsLoaded("Plotsmith.dll"), false);
}

// An Application that answers this for its workbook.
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
  refreshSays(name, withNames(names), description === null ? [kNoSheet] : [report(kTables, description), kNoSheet]);
}

namesSay("no names", {Count: 0}, null);
namesSay("no number of names", {Count: "many"}, kMismatch);
namesSay("Null for a number", {Count: null}, "Invalid use of Null");
namesSay("fewer names than none", {Count: -1}, null);
namesSay("more names than there are", {Count: 3}, kNoMember);
namesSay("names that no object is", {Count: 1, Item: function() { return "name"; }}, kNoObject);
namesSay("names without members", {Count: 1, Item: function() { return {}; }}, kNoMember);
namesSay("Null for a text", {Count: 1, Item: function() { return {Name: null}; }}, "Invalid use of Null");
namesSay("an array for a text", {Count: 1, Item: function() { return {Name: {length: 0}}; }}, kMismatch);
namesSay("names that throw", {Count: 1, Item: function() { throw new Error(5, "no name"); }},
    "Automation error\\r\\nCall failed.");

// Calls back into the component, from a member that it asks for.
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
  var kAtWork = "Plotsmith is still at work on an earlier call. Call it again when that has returned.";
  controller.RefreshPlotsmithData(host, "Add-in", "");
  check("calling back", boxes.Take(), [
    report(kRefresh, kAtWork), report("CPlotsmithController.RefreshChartsForTable", kAtWork), report(kTables, kNoMember),
    kNoSheet
  ].join("\n"));
  host = null;
})();

// Lets go of all objects under the run.
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
  check("letting go", boxes.Take(), [report(kTables, kNoMember), kNoSheet].join("\n"));
})();
boxes.FreeUnusedLibraries();

// An Excel of which one member answers what it never would, for every member that a refresh calls: sheets, ranges,
// cells, names, shapes, charts, series, axes. Whatever comes is said in reports, and the component works afterwards.
var book = WScript.Arguments(2);
var kWays = ["throws", "Null", "Empty", "Nothing", "a number", "a text", "an array", "another object", "calls back"];
var kAtWorkReport = report(kRefresh, "Plotsmith is still at work on an earlier call. Call it again when that has returned.");

function spoiltHost(way, how, callback) {
  var host = new ActiveXObject("PlotsmithTestHost.Application");
  host.Open(book);
  if (way) host.Spoil(way, how, callback);
  return host;
}

// What the boxes say of a refresh in which a member is spoilt.
function spoiltRefresh(way, how) {
  var controller = newController();
  var host = spoiltHost(way, how, function() { controller.RefreshPlotsmithData(host, "Add-in", ""); });
  var result = resultOf(function() { controller.RefreshPlotsmithData(host, "Add-in", ""); });
  if (result !== "ok") return "the call fails with " + result;
  return boxes.Take();
}

// What is said at most: reports of procedures, sentences for the user.
function isSaid(box) {
  return /^Brindle Plotsmith \[OK\]: (\w+\.\w+\\r\\n.|[A-Z].*\.$|Unable to )/.test(box);
}

var untouched = spoiltHost();
newController().RefreshPlotsmithData(untouched, "Add-in", "");
check("nothing is spoilt", boxes.Take(), "");
var plain = untouched.Journal;
var members = untouched.WaysCalled.split("\n");
untouched = null;
(function() {
  var reported = 0;
  for (var i = 0; i < members.length - 1; ++i) {
    for (var j = 0; j < kWays.length; ++j) {
      var name = members[i] + ": " + kWays[j];
      var said = spoiltRefresh(members[i], kWays[j]);
      if (said === "") continue;
      ++reported;
      var boxesShown = said.split("\n");
      for (var k = 0; k < boxesShown.length; ++k) {
        var isExpected = kWays[j] === "calls back" ? boxesShown[k] === kAtWorkReport : isSaid(boxesShown[k]);
        if (!isExpected) check(name, boxesShown[k], "a report");
      }
    }
    CollectGarbage();
    boxes.FreeUnusedLibraries();
  }
  WScript.Echo(members.length + " members, " + reported + " reported");
})();
finish();
