// The host add-in of PlotsmithAddIn.bas in JScript, for scripts that drive Excel from outside of it: such a script loads
// Plotsmith into its own process, and Excel is in another one.
//
//   var excel = GetObject("", "Excel.Application");
//   excel.Workbooks.Open("C:\\Reports\\Sales.xlsx");
//   new PlotsmithAddIn(excel).refresh();

// `excel` is Excel's Application, and `helpFile` the path of Plotsmith.chm; without it, it is that of the installation.
function PlotsmithAddIn(excel, helpFile) {
  this.excel = excel;
  this.helpFile = helpFile || this.installedHelp();
  this.controller = new ActiveXObject("Plotsmith.CPlotsmithController");
  this.staysWithBook = false;  // true while Plotsmith keeps a workbook
  this.lastBook = null;        // the workbook that it keeps
}

// The name that precedes Plotsmith's own in the titles of error messages.
PlotsmithAddIn.prototype.name = "My Add-in";

// Opens the wizard on the active workbook.
PlotsmithAddIn.prototype.charts = function() {
  this.controller.RunPlotsmith(this.excel, this.name, this.helpFile);
  this.letGo();
};

// Refreshes all charts of the active workbook.
PlotsmithAddIn.prototype.refresh = function() {
  this.controller.RefreshPlotsmithData(this.excel, this.name, this.helpFile);
  this.letGo();
};

// Notes that Plotsmith no longer keeps a workbook.
PlotsmithAddIn.prototype.letGo = function() {
  this.staysWithBook = false;
  this.lastBook = null;
};

// Refreshes the charts of one table in the active workbook. Plotsmith keeps the workbook of the first such call until
// all charts of a workbook are refreshed, so that is done first if the workbook has changed. A file that was closed and
// opened again is a different workbook, even with the same name.
PlotsmithAddIn.prototype.refreshTable = function(table) {
  var book = this.excel.ActiveWorkbook;
  if (this.staysWithBook && this.lastBook !== book) this.refresh();
  this.staysWithBook = true;
  this.lastBook = book;
  this.controller.RefreshChartsForTable(this.excel, table);
};

// Returns the path of the help, which is in the folder that Plotsmith's registration names, for one user or for all.
PlotsmithAddIn.prototype.installedHelp = function() {
  var entry = "HKEY_CLASSES_ROOT\\TypeLib\\{F04CE731-6B84-4BED-A04E-E3FE9C127813}\\1.0\\HELPDIR\\";
  try {
    return new ActiveXObject("WScript.Shell").RegRead(entry) + "\\Plotsmith.chm";
  } catch (error) {
    return "";
  }
};
