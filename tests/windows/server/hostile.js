// Applications that answer what no Excel does. Every operation ends in a report, and the call succeeds.
var kMismatch = "Type mismatch";
var kNoObject = "Object required";
var kNoMember = "Object doesn't support this property or method";

function report(procedure, description) {
  return "Brindle Plotsmith [OK]: " + procedure + "\\r\\n" + description;
}

function refreshSays(name, host, expected) {
  check(name, resultOf(function() { newController().RefreshPlotsmithData(host, "Add-in", ""); }), "ok");
  check(name + ": boxes", boxes.Take(), expected);
}

function breaks(name, host, description) {
  refreshSays(name, host, report("CPlotsmithController.RefreshPlotsmithData", description));
}

var calls = [["nothing at all", {}, kNoMember]];
function add(name, workbook, description) { calls.push([name, {ActiveWorkbook: workbook}, description]); }
add("Null for a workbook", null, kNoObject);
add("Empty for a workbook", undefined, kNoObject);
add("a number for a workbook", 5, kNoObject);
add("a text for a workbook", "book", kNoObject);
add("a function for a workbook", function() { throw new Error("called"); }, kNoMember);
add("a workbook without members", {}, kNoMember);
add("Null for a Boolean", {ProtectStructure: null}, "Invalid use of Null");
add("a text for a Boolean", {ProtectStructure: "perhaps"}, kMismatch);
add("an object for a Boolean", {ProtectStructure: {}}, kMismatch);
add("a number that no Boolean is", {ProtectStructure: Number.NaN, MultiUserEditing: true}, "?");
for (var i = 0; i < calls.length; ++i) breaks(calls[i][0], calls[i][1], calls[i][2]);
finish();
