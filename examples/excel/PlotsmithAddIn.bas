Attribute VB_Name = "PlotsmithAddIn"
Option Explicit

' A sample host add-in. It creates Plotsmith's controller when it is first needed. It calls the controller from two buttons
' of the ribbon (customUI.xml), and after a table was filled (PlotsmithTables.cls).

' The name that precedes Plotsmith's own in the titles of error messages.
Public Const AddInName As String = "My Add-in"

Private controller As Object       ' Plotsmith.CPlotsmithController
Private tables As PlotsmithTables
Private staysWithBook As Boolean   ' True while Plotsmith keeps a workbook
Private lastBook As Workbook       ' the workbook that it keeps; Nothing after it was closed

' Auto_Open runs when the add-in is loaded, Auto_Close when it is unloaded.
Public Sub Auto_Open()
    Set tables = New PlotsmithTables
    tables.Watch Application
End Sub

Public Sub Auto_Close()
    Set tables = Nothing
    Set lastBook = Nothing
    Set controller = Nothing
End Sub

' A reference to a closed workbook would keep a part of it in memory.
Public Sub ForgetClosedWorkbooks()
    If tables Is Nothing Then Exit Sub
    tables.ForgetClosedWorkbooks
    If Not IsOpen(lastBook) Then Set lastBook = Nothing
End Sub

Public Function IsOpen(ByVal book As Workbook) As Boolean
    Dim openBook As Workbook
    For Each openBook In Application.Workbooks
        If openBook Is book Then IsOpen = True
    Next
End Function

' The button "Charts" opens the wizard on the active workbook.
Public Sub OnPlotsmithCharts(control As Object)
    Plotsmith.RunPlotsmith Application, AddInName, HelpFile
    LetGo
End Sub

' The button "Refresh" refreshes all charts of the active workbook.
Public Sub OnPlotsmithRefresh(control As Object)
    RefreshAll
End Sub

Private Sub RefreshAll()
    Plotsmith.RefreshPlotsmithData Application, AddInName, HelpFile
    LetGo
End Sub

' Notes that Plotsmith no longer keeps a workbook.
Private Sub LetGo()
    staysWithBook = False
    Set lastBook = Nothing
End Sub

' Refreshes the charts of one table in the active workbook. The table is given by its defined name or by its sheet.
' Plotsmith keeps the workbook of the first such call until all charts are refreshed, so that is done first if the workbook
' has changed. A file that was closed and opened again is a different workbook, even with the same name.
Public Sub RefreshTable(ByVal table As String)
    TakeActiveWorkbook
    Plotsmith.RefreshChartsForTable Application, table
End Sub

' Call this after headings of a table were changed. The charts of the table then use the new names of the columns.
Public Sub RenameColumns(ByVal table As String, oldNames() As String, newNames() As String)
    TakeActiveWorkbook
    Plotsmith.UpdateChartColumnNamesForTable Application, table, oldNames, newNames
End Sub

Private Sub TakeActiveWorkbook()
    If staysWithBook And Not lastBook Is Application.ActiveWorkbook Then RefreshAll
    staysWithBook = True
    Set lastBook = Application.ActiveWorkbook
End Sub

' The add-in uses one object as long as it is loaded. The operations raise no errors; problems are reported in a message
' box. Only CreateObject fails, with error 429, if Plotsmith isn't registered.
Private Function Plotsmith() As Object
    If controller Is Nothing Then Set controller = CreateObject("Plotsmith.CPlotsmithController")
    Set Plotsmith = controller
End Function

' The help is in the folder that Plotsmith's registration names, for one user or for all users. If it is missing, the Help
' buttons of the wizard report that.
Private Function HelpFile() As String
    Const Entry As String = "HKEY_CLASSES_ROOT\TypeLib\{F04CE731-6B84-4BED-A04E-E3FE9C127813}\1.0\HELPDIR\"
    Dim folder As String
    On Error Resume Next
    folder = CreateObject("WScript.Shell").RegRead(Entry)
    On Error GoTo 0
    If folder <> "" Then HelpFile = folder & "\Plotsmith.chm"
End Function
