' Updates changed column names of a table, in a workbook that is open in the test's Excel:
'   operate.vbs rename BOOK OUTPUT JOURNAL TABLE OLD NEW
' The output is the same as that of operate.js.
Option Explicit
Dim given, boxes, excel, controller, calls, unsure
WScript.Echo "started"
Set given = WScript.Arguments
Set boxes = CreateObject("PlotsmithTest.Boxes")
Set excel = CreateObject("PlotsmithTestHost.Application")
Set controller = CreateObject("Plotsmith.CPlotsmithController")

excel.Open given(1)
calls = excel.Calls
unsure = excel.UnsureCalls
controller.UpdateChartColumnNamesForTable excel, given(4), Array(given(5)), Array(given(6))
unsure = excel.UnsureCalls - unsure - 1
calls = excel.Calls - calls
excel.SaveAs given(2)
excel.SaveJournal given(3)
WScript.Echo "calls " & calls & ", unsure " & unsure
WScript.Echo boxes.Take()
