// Sends random input to the wizard in the test's Excel. After each run, the host's window and workbook can be used.
// After the component is unloaded, it can be loaded again: it has left no window class and no window procedure.
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
