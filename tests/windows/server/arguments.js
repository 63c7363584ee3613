// Tests the operations with the arguments that the languages of Excel add-ins pass.
var controller = new ActiveXObject("Plotsmith.CPlotsmithController");
var host = new ActiveXObject("PlotsmithTestHost.Application");

var kNoWorkbook = "Brindle Plotsmith [OK]: You must have a workbook open to use the Plotsmith.";
var kMismatch = "0x80020005";  // error 13, Type mismatch
var kNotOptional = "0x8002000F";  // error 449, Argument not optional
var kCount = "0x8002000E";  // error 450, Wrong number of arguments
var kNotNamed = "0x80020004";  // error 448, Named argument not found

function report(operation, description) {
  return "Brindle Plotsmith [OK]: CPlotsmithController." + operation + "\\r\\n" + description;
}

// An operation that begins shows a message: without an open workbook, the guard reports that.
function runs(call) {
  check(call, boxes.LateBound(controller, call, host), "ok");
  check(call + ": boxes", boxes.Take(), kNoWorkbook);
}

// An operation that is refused doesn't begin.
function isRefused(call, result) {
  check(call, boxes.LateBound(controller, call, host), result);
  check(call + ": boxes", boxes.Take(), "");
}

check("the type library", boxes.Describe(controller),
    "CPlotsmithController: IPlotsmithController\n" +
    "1 RunPlotsmith(IDispatch* oApplication, BSTR sCustomAppName, BSTR sHelpFile)\n" +
    "2 RefreshPlotsmithData(IDispatch* oApplication, BSTR sCustomAppName, BSTR sHelpFile)\n" +
    "3 RefreshChartsForTable(IDispatch* oApplication, [in, out] BSTR* sTableRangeName)\n" +
    "4 UpdateChartColumnNamesForTable(IDispatch* oApplication, BSTR sTableRangeName, " +
    "[in, out] SAFEARRAY(BSTR)* aOldColumnNames, [in, out] SAFEARRAY(BSTR)* aNewColumnNames)");

runs("RefreshPlotsmithData|o|s:Add-in|s:help.chm");
runs("refreshplotsmithdata|o|s:Add-in|s:help.chm");
runs("RefreshPlotsmithData|u|s:Add-in|s:help.chm");
runs("RefreshPlotsmithData|&o|&s:Add-in|&s:help.chm");
runs("RefreshPlotsmithData|&vo|&vs:Add-in|&vs:help.chm");
runs("RefreshPlotsmithData|o|i:5|empty");
runs("RefreshPlotsmithData|o|d:Add-in|&vd:help.chm");
runs("RefreshPlotsmithData|sHelpFile=s:help.chm|sCustomAppName=s:Add-in|oApplication=o");
runs("RefreshPlotsmithData|o|sHelpFile=s:help.chm|sCustomAppName=&vs:Add-in");

isRefused("RefreshPlotsmithData", kNotOptional);
isRefused("RefreshPlotsmithData|o|s:Add-in", kNotOptional);
isRefused("RefreshPlotsmithData|o|missing|s:help.chm", kNotOptional);
isRefused("RefreshPlotsmithData|o|&missing|s:help.chm", kNotOptional);
isRefused("RefreshPlotsmithData|o|&vmissing|s:help.chm", kNotOptional);
isRefused("RefreshPlotsmithData|&vmissing|s:Add-in|s:help.chm", kNotOptional);
isRefused("RefreshPlotsmithData|o|s:Add-in|s:help.chm|s:more", kCount);
isRefused("RefreshPlotsmithData|o|s:Add-in|s:help.chm|oApplication=o", kCount);
isRefused("RefreshPlotsmithData|o|s:Add-in|oApplication=o", kCount);
isRefused("RefreshPlotsmithData|o|s:Add-in|sName=s:", "0x80020006 by its name");
isRefused("RefreshPlotsmithData|o|s:Add-in|sTableRangeName=s:", "0x80020006 by its name");
isRefused("RefreshPlotsmithData|o|s:Add-in|#7=s:help.chm", kNotNamed + " at 0");
isRefused("RefreshPlotsmithData|o|s:Add-in|#-3=s:help.chm", kNotNamed + " at 0");
isRefused("RefreshPlotsmithData|o|sHelpFile=s:help.chm|sHelpFile=s:help.chm", kNotNamed + " at 1");
isRefused("RefreshPlotsmithData|s:Excel|s:Add-in|s:help.chm", kMismatch + " at 2");
isRefused("RefreshPlotsmithData|empty|s:Add-in|s:help.chm", kMismatch + " at 2");
isRefused("RefreshPlotsmithData|null|s:Add-in|s:help.chm", kMismatch + " at 2");
isRefused("RefreshPlotsmithData|o|null|s:help.chm", kMismatch + " at 1");
isRefused("RefreshPlotsmithData|o|s:Add-in|o", kMismatch + " at 0");
isRefused("RefreshPlotsmithData|o|s:Add-in|n", kMismatch + " at 0");
isRefused("RefreshPlotsmithData|o|s:Add-in|d:", kMismatch + " at 0");
isRefused("RefreshPlotsmithData|o|s:Add-in|as:help.chm", kMismatch + " at 0");
isRefused("RefreshPlotsmithData|o|e|s:help.chm", kMismatch + " at 1");
isRefused("RefreshChartsForTable|o|&vas:Data1", kMismatch + " at 0");
isRefused("UpdateChartColumnNamesForTable|o|s:Data1|s:Old|as:New", kMismatch + " at 1");
isRefused("UpdateChartColumnNamesForTable|o|s:Data1|as:Old|as2", kMismatch + " at 0");
isRefused("UpdateChartColumnNamesForTable|o|s:Data1|as:Old|&vnull", kMismatch + " at 0");

// Nothing is an unset object.
check("Nothing", boxes.LateBound(controller, "RunPlotsmith|n|s:|s:", host), "ok");
check("Nothing: boxes", boxes.Take(), report("RunPlotsmith", "Object variable or With block variable not set"));
check("Nothing, as IUnknown", boxes.LateBound(controller, "RunPlotsmith|&n|s:|s:", host), "ok");
check("Nothing, as IUnknown: boxes", boxes.Take(),
    report("RunPlotsmith", "Object variable or With block variable not set"));

// Early bound, like an add-in with a reference to the type library.
check("early bound", boxes.EarlyBound(controller, "RefreshPlotsmithData|o|s:Add-in|s:", host), "ok");
check("early bound: boxes", boxes.Take(), kNoWorkbook);
check("early bound, Nothing", boxes.EarlyBound(controller, "RunPlotsmith|n|s:|s:", host), "ok");
check("early bound, Nothing: boxes", boxes.Take(),
    report("RunPlotsmith", "Object variable or With block variable not set"));

// Late bound, like a script.
check("a script without arguments", resultOf(function() { controller.RunPlotsmith(); }), kNotOptional);
check("a script with too many", resultOf(function() { controller.RunPlotsmith(host, "", "", ""); }), kCount);
check("a script without a host", resultOf(function() { controller.RunPlotsmith("Excel", "", ""); }), kMismatch);
check("a script with wrong arguments", resultOf(function() { controller.Refresh(host); }), "0x800A01B6");
check("a script that reads", resultOf(function() { var value = controller.RunPlotsmith; }), "0x80020003");
check("a script: boxes", boxes.Take(), "");

// Arrays of all kinds, and names of all kinds, reach the rename as the same names.
var fileSystem = new ActiveXObject("Scripting.FileSystemObject");
var book = WScript.Arguments(0) + "\\countries.xlsx";
fileSystem.CopyFile(WScript.Arguments(1) + "\\countries.xlsx", book, true);

// Returns the column names in the workbook's definitions after a rename.
function columnsAfter(invoke, call) {
  var session = new ActiveXObject("PlotsmithTestHost.Application");
  session.Open(book);
  newController().RefreshPlotsmithData(session, "", "");  // releases the workbook of the previous call
  boxes.Take();
  session.Open(book);
  check(call, boxes[invoke](controller, "UpdateChartColumnNamesForTable|" + call, session), "ok");
  check(call + ": boxes", boxes.Take(), "");
  var names = session.Journal.match(/column name=""[^"]*""/g);
  return names === null ? "" : names.join(" ").replace(/column name=/g, "").replace(/"/g, "");
}

var kTable = "s:VEX_TableRange_Countries|";
var kNoneRenamed = "Country Region Life expectancy GDP per head Population Country Region Online City dwellers Population";
var kRenamed = "Country Continent Life GDP per head Population Country Continent Online City dwellers Population";

function renames(invoke, arrays, expected) {
  check(arrays, columnsAfter(invoke, "o|" + kTable + arrays), expected);
}

renames("LateBound", "as:Region,Life expectancy|as:Continent,Life", kRenamed);
renames("LateBound", "&as:Region,Life expectancy|&as:Continent,Life", kRenamed);
renames("LateBound", "av:Region,Life expectancy|av:Continent,Life", kRenamed);
renames("LateBound", "&av:Region,Life expectancy|&as:Continent,Life", kRenamed);
renames("LateBound", "&vas:Region,Life expectancy|&vav:Continent,Life", kRenamed);
renames("LateBound", "as0|as0", kNoneRenamed);
check("a table by an object's default member",
    columnsAfter("LateBound", "o|d:VEX_TableRange_Countries|as:Region,Life expectancy|as:Continent,Life"), kRenamed);
renames("LateBound", "ai|ai", kNoneRenamed);
renames("EarlyBound", "as:Region,Life expectancy|as:Continent,Life", kRenamed);
finish();
