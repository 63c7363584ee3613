Attribute VB_Name = "VEXEvents"
Option Explicit

' Plotsmith runs these two macros, by name, before and after its work: without an argument for a refresh of several charts,
' and with the chart's id for the build of each chart. They are optional. They must not call Plotsmith, because an operation
' is running then.

Public Sub VEXChartRefreshStarted(Optional ByVal chartId As Variant)
    If IsMissing(chartId) Then
        Application.StatusBar = "Refreshing charts..."
    Else
        Application.StatusBar = "Refreshing chart " & chartId & "..."
    End If
End Sub

Public Sub VEXChartRefreshComplete(Optional ByVal chartId As Variant)
    If IsMissing(chartId) Then Application.StatusBar = False
End Sub
