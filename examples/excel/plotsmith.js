// The host add-in of PlotsmithAddIn.bas in JScript, for scripts that drive Excel from outside of it: such a script loads
// Plotsmith into its own process, and Excel is in another one.
//
//   var excel = GetObject("", "Excel.Application");
//   excel.Workbooks.Open("C:\\Reports\\Sales.xlsx");
//   new PlotsmithAddIn(excel).refresh();

// `excel` is Excel's Application, and `helpFile` the path of Plotsmith.chm, which can be left out.
function PlotsmithAddIn(excel, helpFile) {
  this.excel = excel;
  this.helpFile = helpFile || "";
  this.controller = new ActiveXObject("Plotsmith.CPlotsmithController");
}

// What Plotsmith puts in front of its own name in the title of its error boxes.
PlotsmithAddIn.prototype.name = "My Add-in";

// The wizard on the active workbook.
PlotsmithAddIn.prototype.charts = function() {
  this.controller.RunPlotsmith(this.excel, this.name, this.helpFile);
};

// All charts of the active workbook.
PlotsmithAddIn.prototype.refresh = function() {
  this.controller.RefreshPlotsmithData(this.excel, this.name, this.helpFile);
};

// The charts over one table of the active workbook. Plotsmith stays with the workbook of the first such call until all
// charts of one are refreshed.
PlotsmithAddIn.prototype.refreshTable = function(table) {
  this.controller.RefreshChartsForTable(this.excel, table);
};
