// Runs an operation of the component on a workbook that is open in the test's Excel:
//   operate.js refresh BOOK OUTPUT JOURNAL
//   operate.js table BOOK OUTPUT JOURNAL TABLE
// Prints "started", the number of calls to the host, the number of them without a definite kind, and the texts of
// message boxes.
// operate.vbs has the operation with array arguments, which JScript can't make.
// An error is printed, because Wine's cscript ends without a word on errors that nobody catches.
WScript.Echo("started");
var given = WScript.Arguments;
try {
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
} catch (error) {
  WScript.Echo("error 0x" + (error.number >>> 0).toString(16) + " " + error.message);
}
