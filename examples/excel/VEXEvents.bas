Attribute VB_Name = "VEXEvents"
Option Explicit

' Plotsmith runs these two macros, by their names, before and after its work: without an argument around a refresh of
' several charts, and with the chart's id around the build of each. A host that has no use for them leaves them out.
' They must not call Plotsmith, which is at work then.

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
