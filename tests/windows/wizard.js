// Runs the wizard in the test's Excel with a script:
//   wizard.js BOOK SCRIPT OUTPUT
// Prints the failure on one line, then the output of the script. Checks that the host's window hasn't changed.
var given = WScript.Arguments;
var files = new ActiveXObject("Scripting.FileSystemObject");
var boxes = new ActiveXObject("PlotsmithTest.Boxes");
var excel = new ActiveXObject("PlotsmithTestHost.Application");
var controller = new ActiveXObject("Plotsmith.CPlotsmithController");

excel.Open(given(0));
boxes.Window();
boxes.PlayScript(files.OpenTextFile(given(1)).ReadAll());
controller.RunPlotsmith(excel, "plotsmith", "");
var printed = boxes.FinishScript();
WScript.Echo(boxes.WindowIsEnabled() ? printed : "The host's window can't be used any more.\n" + printed);
excel.SaveAs(given(2));
