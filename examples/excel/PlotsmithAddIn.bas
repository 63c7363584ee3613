Attribute VB_Name = "PlotsmithAddIn"
Option Explicit

' A host add-in to start from. It makes Plotsmith's controller when it is first needed, and calls it from two buttons of
' the ribbon (customUI.xml) and when a table was filled (PlotsmithTables.cls).

' What Plotsmith puts in front of its own name in the title of its error boxes.
Public Const AddInName As String = "My Add-in"

Private controller As Object       ' Plotsmith.CPlotsmithController
Private tables As PlotsmithTables
Private staysWithBook As Boolean   ' whether Plotsmith stays with a workbook
Private lastBook As Workbook       ' that workbook; Nothing once it was closed

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

' A reference to a workbook that was closed would keep a part of it in memory.
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

' The button "Charts": the wizard on the active workbook.
Public Sub OnPlotsmithCharts(control As Object)
    Plotsmith.RunPlotsmith Application, AddInName, HelpFile
    LetGo
End Sub

' The button "Refresh": all charts of the active workbook.
Public Sub OnPlotsmithRefresh(control As Object)
    RefreshAll
End Sub

Private Sub RefreshAll()
    Plotsmith.RefreshPlotsmithData Application, AddInName, HelpFile
    LetGo
End Sub

' Plotsmith has let go of its workbook.
Private Sub LetGo()
    staysWithBook = False
    Set lastBook = Nothing
End Sub

' The charts over one table of the active workbook, by the defined name or the sheet that the table is known by.
' Plotsmith stays with the workbook of the first such call until all charts are refreshed, so a change of the workbook
' takes that. A file that was closed and opened again is another workbook, though its name is the same.
Public Sub RefreshTable(ByVal table As String)
    TakeActiveWorkbook
    Plotsmith.RefreshChartsForTable Application, table
End Sub

' After headings of a table were changed: the charts over it name its columns, and go on with the new names.
Public Sub RenameColumns(ByVal table As String, oldNames() As String, newNames() As String)
    TakeActiveWorkbook
    Plotsmith.UpdateChartColumnNamesForTable Application, table, oldNames, newNames
End Sub

Private Sub TakeActiveWorkbook()
    If staysWithBook And Not lastBook Is Application.ActiveWorkbook Then RefreshAll
    staysWithBook = True
    Set lastBook = Application.ActiveWorkbook
End Sub

' One object serves for as long as the add-in is loaded. Its operations raise no errors: what goes wrong is said in a
' message box. Only CreateObject fails, with error 429, where Plotsmith isn't registered.
Private Function Plotsmith() As Object
    If controller Is Nothing Then Set controller = CreateObject("Plotsmith.CPlotsmithController")
    Set Plotsmith = controller
End Function

' The help lies in the folder that Plotsmith's registration names, for one user or for all. Without it, the Help buttons
' of the wizard say that it isn't there.
Private Function HelpFile() As String
    Const Entry As String = "HKEY_CLASSES_ROOT\TypeLib\{F04CE731-6B84-4BED-A04E-E3FE9C127813}\1.0\HELPDIR\"
    Dim folder As String
    On Error Resume Next
    folder = CreateObject("WScript.Shell").RegRead(Entry)
    On Error GoTo 0
    If folder <> "" Then HelpFile = folder & "\Plotsmith.chm"
End Function
