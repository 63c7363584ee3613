// A monkey plays with the wizard in the test's Excel. After each run the host's window and workbook can be used, and
// when the component has gone, it can come again: it has left no window class and no procedure of its own behind.
(function() {
  var events = 0;
  for (var seed = 1; seed <= 4; ++seed) {
    var host = new ActiveXObject("PlotsmithTestHost.Application");
    host.Open(WScript.Arguments(0));
    boxes.Window();
    boxes.PlayMonkey(seed, 150);
    boxes.Create("Plotsmith.CPlotsmithController").RunPlotsmith(host, "plotsmith", "");
    events += boxes.FinishMonkey();
    check("seed " + seed + ": the window", boxes.WindowIsEnabled(), true);
    host.SaveAs(WScript.Arguments(1) + "\\monkey.xlsx");
    host.Open(WScript.Arguments(1) + "\\monkey.xlsx");
    host = null;
    CollectGarbage();
    boxes.FreeUnusedLibraries();
    check("seed " + seed + ": the component has gone", boxes.IsLoaded("Plotsmith.dll"), false);
  }
  check("there were events", events > 30, true);
})();
finish();
