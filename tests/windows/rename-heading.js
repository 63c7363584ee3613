// Changes the heading of a column, as a user does in Excel: rename-heading.js BOOK OUTPUT SHEET ROW COLUMN
var given = WScript.Arguments;
var excel = new ActiveXObject("PlotsmithTestHost.Application");
excel.Open(given(0));
var cell = excel.ActiveWorkbook.Worksheets(given(2)).Cells(Number(given(3)), Number(given(4)));
cell.Value = "Something else";
excel.SaveAs(given(1));
WScript.Echo(cell.Address + " " + cell.Value);
