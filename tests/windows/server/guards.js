// Tests the conditions that prevent an operation, and their order.
var kProduct = "Brindle Plotsmith [OK]: ";
var kNoWorkbook = kProduct + "You must have a workbook open to use the Plotsmith.";
var kProtected = kProduct +
    "This workbook has been protected. To use the Plotsmith you need to turn off Structure Protection.";
var kShared = kProduct + "This is a shared workbook. To use the Plotsmith you need to turn off workbook sharing.";
var kNotSet = "Object variable or With block variable not set";
var kEditing = kProduct +
    "You are currently editing a cell or object. Please finish editing before using the Plotsmith.";

// An Application made by the script, with a workbook that the wizard can't process.
function hostWith(isProtected, isShared) {
  return {ActiveWorkbook: {ProtectStructure: isProtected, MultiUserEditing: isShared}, Interactive: true};
}

function says(name, host, expected) {
  newController().RefreshPlotsmithData(host, "Add-in", "");
  check(name + ", refresh", boxes.Take(), expected);
  newController().RunPlotsmith(host, "Add-in", "");
  check(name + ", wizard", boxes.Take(), expected);
}

var host = new ActiveXObject("PlotsmithTestHost.Application");

// The operations on one table have no guards. They report an error when they use the missing workbook.
function tripsWithoutWorkbook(name, call) {
  check(name + " without a workbook", boxes.LateBound(newController(), call, host), "ok");
  check(name + " without a workbook: boxes", boxes.Take(), [
    kProduct + "PSFunctions.RetrieveTableDefinitions\\r\\n" + kNotSet,
    kProduct + "PSFunctions.RetrieveChartDefinitions\\r\\n" + kNotSet
  ].join("\n"));
  CollectGarbage();
  boxes.FreeUnusedLibraries();  // the component forgets its state
}
tripsWithoutWorkbook("a refresh of a table", "RefreshChartsForTable|o|s:Data1");
tripsWithoutWorkbook("a rename", "UpdateChartColumnNamesForTable|o|s:Data1|as:Old|as:New");

says("no workbook", host, kNoWorkbook);
host.Open(WScript.Arguments(1) + "\\countries.xlsx");
host.Editing = true;
says("a cell is edited", host, kEditing);
check("a cell is edited: the journal", host.Journal, "");

// If Interactive is already False, it gives no information and isn't changed.
host.Editing = false;
host.Interactive = false;
host.Editing = true;
newController().RefreshPlotsmithData(host, "Add-in", "");
check("Interactive is False", boxes.Take(), "");
check("Interactive is False: the journal", host.Journal.split("\n").slice(0, 3).join("\n"),
    'Application.Interactive = False\nApplication.Run("VEXEvents.VEXChartRefreshStarted")\n' +
    "Application.ScreenUpdating = False");
check("Interactive is False: it stays so", host.Journal.split("Application.Interactive").length, 2);
host.Editing = false;
host.Interactive = true;

// The operations on one table use the open workbook.
newController().RefreshChartsForTable(host, "no such table");
check("a missing table", boxes.Take(), "");

// The component keeps the Application of the first call, so the script's own Application is used last.
says("protected", hostWith(true, false), kProtected);
says("shared", hostWith(false, true), kShared);
says("protected and shared", hostWith(true, true), kProtected);
says("a number for a Boolean", hostWith(0, 1), kShared);

// The window of the host owns the boxes.
var owned = hostWith(true, false);
owned.Hwnd = boxes.Window();
newController().RefreshPlotsmithData(owned, "", "");
check("the owner", boxes.Take(), kProtected.replace("[OK]", "[OK] of A window of the host"));
owned.Hwnd = 12345;
newController().RefreshPlotsmithData(owned, "", "");
check("a missing window", boxes.Take(), kProtected);
owned.Hwnd = "no number";
newController().RefreshPlotsmithData(owned, "", "");
check("no window", boxes.Take(), kProtected);
finish();
