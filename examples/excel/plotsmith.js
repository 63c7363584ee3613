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
  this.staysWithBook = false;  // whether Plotsmith stays with a workbook
  this.lastBook = null;        // that workbook
}

// What Plotsmith puts in front of its own name in the title of its error boxes.
PlotsmithAddIn.prototype.name = "My Add-in";

// The wizard on the active workbook.
PlotsmithAddIn.prototype.charts = function() {
  this.controller.RunPlotsmith(this.excel, this.name, this.helpFile);
  this.letGo();
};

// All charts of the active workbook.
PlotsmithAddIn.prototype.refresh = function() {
  this.controller.RefreshPlotsmithData(this.excel, this.name, this.helpFile);
  this.letGo();
};

// Plotsmith has let go of its workbook.
PlotsmithAddIn.prototype.letGo = function() {
  this.staysWithBook = false;
  this.lastBook = null;
};

// The charts over one table of the active workbook. Plotsmith stays with the workbook of the first such call until all
// charts of one are refreshed, so a change of the workbook takes that. A file that was closed and opened again is
// another workbook, though its name is the same.
PlotsmithAddIn.prototype.refreshTable = function(table) {
  var book = this.excel.ActiveWorkbook;
  if (this.staysWithBook && this.lastBook !== book) this.refresh();
  this.staysWithBook = true;
  this.lastBook = book;
  this.controller.RefreshChartsForTable(this.excel, table);
};

// The help lies in the folder that Plotsmith's registration names, for one user or for all.
PlotsmithAddIn.prototype.installedHelp = function() {
  var entry = "HKEY_CLASSES_ROOT\\TypeLib\\{F04CE731-6B84-4BED-A04E-E3FE9C127813}\\1.0\\HELPDIR\\";
  try {
    return new ActiveXObject("WScript.Shell").RegRead(entry) + "\\Plotsmith.chm";
  } catch (error) {
    return "";
  }
};
