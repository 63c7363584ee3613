// Tests the conditions that prevent an operation, and their order.
var kProduct = "Brindle Plotsmith [OK]: ";
var kNoWorkbook = kProduct + "You must have a workbook open to use the Plotsmith.";
var kProtected = kProduct +
    "This workbook has been protected. To use the Plotsmith you need to turn off Structure Protection.";
var kShared = kProduct + "This is a shared workbook. To use the Plotsmith you need to turn off workbook sharing.";
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
says("no workbook", host, kNoWorkbook);
host.Open(WScript.Arguments(1) + "\\countries.xlsx");
host.Editing = true;
says("a cell is edited", host, kEditing);
check("a cell is edited: the journal", host.Journal, "");

// The operations on one table have no guards: they process the open workbook.
host.Editing = false;
newController().RefreshChartsForTable(host, "no such table");
check("a table that isn't there", boxes.Take(), "");

// The component keeps the Application of the first call, so the script's own Application is used last.
says("protected", hostWith(true, false), kProtected);
says("shared", hostWith(false, true), kShared);
says("protected and shared", hostWith(true, true), kProtected);
says("a number is as good as a Boolean", hostWith(0, 1), kShared);

// The window of the host owns the boxes.
var owned = hostWith(true, false);
owned.Hwnd = boxes.Window();
newController().RefreshPlotsmithData(owned, "", "");
check("the owner", boxes.Take(), kProtected.replace("[OK]", "[OK] of A window of the host"));
owned.Hwnd = 12345;
newController().RefreshPlotsmithData(owned, "", "");
check("a window that isn't there", boxes.Take(), kProtected);
owned.Hwnd = "no number";
newController().RefreshPlotsmithData(owned, "", "");
check("no window", boxes.Take(), kProtected);
finish();
