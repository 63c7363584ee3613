// One operation of the component on a workbook that is open in the test's Excel:
//   operate.js refresh BOOK OUTPUT JOURNAL
//   operate.js table BOOK OUTPUT JOURNAL TABLE
// Prints how many calls the host has got, how many of them left open what they called, and then what message
// boxes said. operate.vbs has the operation that takes arrays, which JScript hasn't got.
var given = WScript.Arguments;
var boxes = new ActiveXObject("PlotsmithTest.Boxes");
var excel = new ActiveXObject("PlotsmithTestHost.Application");
var controller = new ActiveXObject("Plotsmith.CPlotsmithController");

excel.Open(given(1));
var before = excel.Calls;
var unsureBefore = excel.UnsureCalls;
if (given(0) == "table") {
  controller.RefreshChartsForTable(excel, given(4));
} else {
  controller.RefreshPlotsmithData(excel, "plotsmith", "");
}
var unsure = excel.UnsureCalls - unsureBefore;
var calls = excel.Calls - before;
excel.SaveAs(given(2));
excel.SaveJournal(given(3));
WScript.Echo("calls " + calls + ", unsure " + unsure);
WScript.Echo(boxes.Take());
