#include <gtest/gtest.h>
#include <set>

#include "tests/windows/contract/FakeDispatch.h"
#include "tests/windows/contract/PortContract.h"
#include "windows/com/Texts.h"
#include "windows/excel/Proxy.h"

namespace plotsmith::contract {
namespace {

/// Returns the name in Excel's reference of a type that a member returns, either a value or an object.
/// @{
template <class T>
struct TypeName;
// clang-format off
template <> struct TypeName<bool> { static constexpr const char* value = "Boolean"; };
template <> struct TypeName<std::int32_t> { static constexpr const char* value = "Long"; };
template <> struct TypeName<double> { static constexpr const char* value = "Double"; };
template <> struct TypeName<std::string> { static constexpr const char* value = "String"; };
template <> struct TypeName<excel::Variant> { static constexpr const char* value = "Variant"; };
template <> struct TypeName<std::vector<excel::Variant>> { static constexpr const char* value = "Variant()"; };
#define CLASS_NAME(Class) \
  template <> struct TypeName<Ref<excel::Class>> { static constexpr const char* value = #Class; };
#include "windows/excel/members/Classes.inc"
#undef CLASS_NAME
// clang-format on
///@}

/// Returns an argument as Excel gets it: its type, and its value if it has one.
std::string Sent(const VARIANT& value) {
  if (com::IsArray(value)) return "Array(" + Words(com::ListOf(value)) + ")";
  if (com::IsMissing(value)) return "Missing";
  switch (V_VT(&value)) {
    case VT_BOOL:
      return "Boolean " + Words(com::FromVariant(value));
    case VT_I4:
      return "Long " + Words(com::FromVariant(value));
    case VT_R8:
      return "Double " + Words(com::FromVariant(value));
    case VT_BSTR:
      return "String " + Words(com::FromVariant(value));
    case VT_DISPATCH:
      return "Object";
    default:
      return "type " + std::to_string(V_VT(&value));
  }
}

/// Returns the arguments before `end`. Several omitted arguments in a row are counted.
std::string Listed(const DISPPARAMS& sent, UINT end) {
  std::string list;
  UINT missing = 0;
  for (UINT i = 0; i <= end; ++i) {
    const std::string word = i == end ? "" : Sent(sent.rgvarg[sent.cArgs - 1 - i]);
    const std::string comma = list.empty() ? "" : ", ";
    if (word == "Missing") {
      ++missing;
      continue;
    }
    if (missing > 0) list += comma + (missing > 2 ? std::to_string(missing) + " x Missing" : "Missing");
    if (missing == 2) list += ", Missing";
    missing = 0;
    if (i < end) list += (list.empty() ? "" : ", ") + word;
  }
  return list;
}

/// Returns a call as Visual Basic writes it.
std::string Called(WORD flags, const std::wstring& name, const DISPPARAMS& sent) {
  const std::string text(name.begin(), name.end());
  const bool puts = sent.cNamedArgs == 1 && sent.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
  const std::string arguments = text + "(" + Listed(sent, sent.cArgs - (puts ? 1 : 0)) + ")";
  if (flags == DISPATCH_PROPERTYPUT && puts) return "Let " + arguments + " = " + Sent(sent.rgvarg[0]);
  if (sent.cNamedArgs != 0) return "a call with named arguments";
  if (flags == DISPATCH_PROPERTYGET) return "Get " + arguments;
  return flags == DISPATCH_METHOD ? "Call " + arguments : "several kinds of " + arguments;
}

/// Returns the fake Excel's result for a member of type T.
/// @{
template <class T>
T Sample() {
  return {};
}
template <>
bool Sample<bool>() {
  return true;
}
template <>
std::int32_t Sample<std::int32_t>() {
  return 7;
}
template <>
double Sample<double>() {
  return 2.5;
}
template <>
std::string Sample<std::string>() {
  return "text";
}
template <>
excel::Variant Sample<excel::Variant>() {
  return 2.5;
}
template <>
std::vector<excel::Variant> Sample<std::vector<excel::Variant>>() {
  return {1, "two"};
}
///@}

template <class T>
com::OwnedVariant AnswerOf(IDispatch* self, const std::wstring& name) {
  // members on the way to the tested one
  static const std::set<std::wstring> kObjects = {L"BuiltinDocumentProperties", L"Cells", L"Item", L"Rows"};
  if constexpr (proxies::IsRef<T>::value || std::is_void_v<T>) {
    return com::ToVariant(self);
  } else if constexpr (std::is_same_v<T, std::vector<excel::Variant>>) {
    return com::ToArray(Sample<T>());
  } else {
    return kObjects.contains(name) ? com::ToVariant(self) : com::ToVariant(excel::Variant(Sample<T>()));
  }
}

/// Returns what Excel receives from a call of a port's class, and the type of the result. Every object that
/// Excel returns is the fake itself; a value must arrive unchanged.
template <class Class, class Result>
std::string AskedBy(const std::function<Result(Class&)>& use) {
  std::string asked;
  FakeDispatch* self = nullptr;
  FakeDispatch excel([&](WORD flags, const DISPPARAMS& sent, VARIANT* answer, EXCEPINFO*) {
    asked += (asked.empty() ? "" : "; ") + Called(flags, self->lastName, sent);
    if (answer != nullptr) *answer = AnswerOf<Result>(self, self->lastName).Detach();
    return S_OK;
  });
  self = &excel;
  const auto object = proxies::Wrap<Class>(com::ComPtr<IDispatch>(&excel));
  if constexpr (std::is_void_v<Result>) {
    use(*object);
    return asked;
  } else {
    const Result result = use(*object);
    if constexpr (proxies::IsRef<Result>::value) {
      EXPECT_TRUE(result) << asked;
    } else {
      EXPECT_EQ(result, Sample<Result>()) << asked;
    }
    return asked + " As " + TypeName<Result>::value;
  }
}

/// Does the same for a function. The code for each is small, because there are hundreds.
template <class Class, class Use>
std::string Asked(const Use& use) {
  return AskedBy<Class, decltype(use(std::declval<Class&>()))>(use);
}

/// A call of the port, and what Excel receives from it.
struct Row {
  std::string memberOf, call;
  std::function<std::string()> asked;
  std::string expected;
};
#define ROW(Class, call, expected)                                                                     \
  Row {                                                                                                \
#Class, #call,                                                                                     \
        [] { return Asked<excel::Class>([](excel::Class& object) { return object.call; }); }, expected \
  }

// The kinds, arguments and types are those in the reference of Excel's object model. They are written again
// here, because the proxies and the test's Excel are both made from src/windows/excel/members, and a wrong
// line there would be wrong on both sides.

const std::vector<Row>& BookRows() {
  static const std::vector<Row> rows = {
      ROW(Application, ActiveWorkbook(), "Get ActiveWorkbook() As Workbook"),
      ROW(Application, ActiveChart(), "Get ActiveChart() As Chart"),
      ROW(Application, ActiveWindow(), "Get ActiveWindow() As Window"),
      ROW(Application, Version(), "Get Version() As String"),
      ROW(Application, StandardFont(), "Get StandardFont() As String"),
      ROW(Application, StandardFontSize(), "Get StandardFontSize() As Double"),
      ROW(Application, ScreenUpdating(), "Get ScreenUpdating() As Boolean"),
      ROW(Application, SetScreenUpdating(false), "Let ScreenUpdating() = Boolean False"),
      ROW(Application, Interactive(), "Get Interactive() As Boolean"),
      ROW(Application, SetInteractive(true), "Let Interactive() = Boolean True"),
      ROW(Application, Calculation(), "Get Calculation() As Long"),
      ROW(Application, SetCalculation(excel::xlCalculationManual), "Let Calculation() = Long -4135"),
      ROW(Application, SetDisplayAlerts(false), "Let DisplayAlerts() = Boolean False"),
      ROW(Application, Run("VEXEvents.VEXChartRefreshStarted", {"VEX_Chart1"}),
          R"(Call Run(String "VEXEvents.VEXChartRefreshStarted", String "VEX_Chart1", 29 x Missing))"),
      ROW(Application, Run("VEXEvents.VEXChartRefreshStarted", {}),
          R"(Call Run(String "VEXEvents.VEXChartRefreshStarted", 30 x Missing))"),
      ROW(Window, SetDisplayGridlines(false), "Let DisplayGridlines() = Boolean False"),
      ROW(Window, SetDisplayHeadings(false), "Let DisplayHeadings() = Boolean False"),
      ROW(Workbook, ProtectStructure(), "Get ProtectStructure() As Boolean"),
      ROW(Workbook, MultiUserEditing(), "Get MultiUserEditing() As Boolean"),
      ROW(Workbook, ActiveSheet(), "Get ActiveSheet() As Sheet"),
      ROW(Workbook, Sheets(), "Get Sheets() As Sheets"),
      ROW(Workbook, Worksheets(), "Get Worksheets() As Worksheets"),
      ROW(Workbook, Names(), "Get Names() As Names"),
      ROW(Workbook, Colors(3), "Get Colors(Long 3) As Long"),
      ROW(Workbook, SetColors(3, 255), "Let Colors(Long 3) = Long 255"),
      ROW(Workbook, BuiltinDocumentProperties("Title"),
          R"(Get BuiltinDocumentProperties(); Get Item(String "Title") As DocumentProperty)"),
      ROW(Sheets, Count(), "Get Count() As Long"),
      ROW(Sheets, Item(2), "Get Item(Long 2) As Sheet"),
      ROW(Sheets, Item("Data1"), R"(Get Item(String "Data1") As Sheet)"),
      ROW(Sheets, Add(nullptr, nullptr), "Call Add(Missing, Missing) As Worksheet"),
      ROW(Sheets, Add(object.Item(1), nullptr), "Get Item(Long 1); Call Add(Object, Missing) As Worksheet"),
      ROW(Sheets, Add(nullptr, object.Item(1)), "Get Item(Long 1); Call Add(Missing, Object) As Worksheet"),
      ROW(Worksheets, Count(), "Get Count() As Long"),
      ROW(Worksheets, Item(2), "Get Item(Long 2) As Worksheet"),
      ROW(Worksheets, Item("Data1"), R"(Get Item(String "Data1") As Worksheet)"),
      ROW(Sheet, Name(), "Get Name() As String"),
      ROW(Sheet, SetName("Data1"), R"(Let Name() = String "Data1")"),
      ROW(Sheet, Visible(), "Get Visible() As Long"),
      ROW(Sheet, SetVisible(excel::xlSheetVeryHidden), "Let Visible() = Long 2"),
      ROW(Sheet, Activate(), "Call Activate()"),
      ROW(Sheet, Delete(), "Call Delete()"),
      ROW(Worksheet, Name(), "Get Name() As String"),
      ROW(Worksheet, SetName("Data1"), R"(Let Name() = String "Data1")"),
      ROW(Worksheet, Visible(), "Get Visible() As Long"),
      ROW(Worksheet, SetVisible(excel::xlSheetVisible), "Let Visible() = Long -1"),
      ROW(Worksheet, Activate(), "Call Activate()"),
      ROW(Worksheet, Delete(), "Call Delete()"),
      ROW(Worksheet, Cells(3, 4), "Get Cells(Long 3, Long 4) As Range"),
      ROW(Worksheet, Range("A1", "B2"), R"(Get Range(String "A1", String "B2") As Range)"),
      ROW(Worksheet, Rows(5), "Get Rows(Long 5) As Range"),
      ROW(Worksheet, UsedRange(), "Get UsedRange() As Range"),
      ROW(Worksheet, Shapes(), "Get Shapes() As Shapes"),
      ROW(Worksheet, ChartObjects(), "Call ChartObjects() As ChartObjects"),
      ROW(Worksheet, CellValueAt(3, 4).ToVariant(), "Get Cells(Long 3, Long 4); Get Value() As Variant"),
      ROW(Worksheet, SetCellValueAt(3, 4, 2.5), "Get Cells(Long 3, Long 4); Let Value() = Double 2.5"),
      ROW(Range, Row(), "Get Row() As Long"),
      ROW(Range, Column(), "Get Column() As Long"),
      ROW(Range, Rows(), "Get Rows() As Range"),
      ROW(Range, Columns(), "Get Columns() As Range"),
      ROW(Range, Count(), "Get Count() As Long"),
      ROW(Range, Cells(1, 2), "Get Cells(Long 1, Long 2) As Range"),
      ROW(Range, Address(), "Get Address() As String"),
      ROW(Range, Value(), "Get Value() As Variant"),
      ROW(Range, SetValue("text"), R"(Let Value() = String "text")"),
      ROW(Range, Text(), "Get Text() As String"),
      ROW(Range, SetNumberFormat("0.00"), R"(Let NumberFormat() = String "0.00")"),
      ROW(Range, Clear(), "Call Clear()"),
      ROW(Range, Activate(), "Call Activate()"),
      ROW(Range, Insert(), "Call Insert()"),
      ROW(Range, Delete(excel::xlShiftUp), "Call Delete(Long -4162)"),
      ROW(Range, Sort(object.Rows(), excel::xlDescending, excel::xlYes, 1, false, excel::xlTopToBottom),
          "Get Rows(); Call Sort(Object, Long 2, 5 x Missing, Long 1, Long 1, Boolean False, Long 1)"),
      ROW(Names, Count(), "Get Count() As Long"),
      ROW(Names, Item(2), "Call Item(Long 2) As DefinedName"),
      ROW(Names, Item("VEX_TableRange"), R"(Call Item(String "VEX_TableRange") As DefinedName)"),
      ROW(DefinedName, Name(), "Get Name() As String"),
      ROW(DefinedName, RefersTo(), "Get RefersTo() As String"),
      ROW(DefinedName, RefersToRange(), "Get RefersToRange() As Range"),
      ROW(DocumentProperty, Value(), "Get Value() As Variant"),
  };
  return rows;
}

const std::vector<Row>& ChartRows() {
  static const std::vector<Row> rows = {
      ROW(ChartObjects, Count(), "Get Count() As Long"),
      ROW(ChartObjects, Item("Chart 1"), R"(Call Item(String "Chart 1") As ChartObject)"),
      ROW(ChartObjects, Add(1, 2, 3, 4), "Call Add(Double 1, Double 2, Double 3, Double 4) As ChartObject"),
      ROW(ChartObject, Name(), "Get Name() As String"),
      ROW(ChartObject, Chart(), "Get Chart() As Chart"),
      ROW(Chart, Application(), "Get Application() As Application"),
      ROW(Chart, ChartType(), "Get ChartType() As Long"),
      ROW(Chart, SetChartType(excel::xlColumnClustered), "Let ChartType() = Long 51"),
      ROW(Chart, SeriesCollection(), "Call SeriesCollection() As SeriesCollection"),
      ROW(Chart, ChartGroups(1), "Call ChartGroups(Long 1) As ChartGroup"),
      ROW(Chart, HasTitle(), "Get HasTitle() As Boolean"),
      ROW(Chart, SetHasTitle(true), "Let HasTitle() = Boolean True"),
      ROW(Chart, ChartTitle(), "Get ChartTitle() As ChartTitle"),
      ROW(Chart, HasLegend(), "Get HasLegend() As Boolean"),
      ROW(Chart, SetHasLegend(false), "Let HasLegend() = Boolean False"),
      ROW(Chart, Legend(), "Get Legend() As Legend"),
      ROW(Chart, HasAxis(excel::xlCategory), "Get HasAxis(Long 1) As Boolean"),
      ROW(Chart, SetHasAxis(excel::xlCategory, false), "Let HasAxis(Long 1) = Boolean False"),
      ROW(Chart, Axes(excel::xlValue, excel::xlPrimary), "Call Axes(Long 2, Long 1) As Axis"),
      ROW(Chart, ChartArea(), "Get ChartArea() As ChartArea"),
      ROW(Chart, PlotArea(), "Get PlotArea() As PlotArea"),
      ROW(Chart, Shapes(), "Get Shapes() As Shapes"),
      ROW(ChartTitle, Text(), "Get Text() As String"),
      ROW(ChartTitle, SetText("Sales"), R"(Let Text() = String "Sales")"),
      ROW(ChartArea, Width(), "Get Width() As Double"),
      ROW(ChartArea, Interior(), "Get Interior() As Interior"),
      ROW(ChartArea, Fill(), "Get Fill() As ChartFillFormat"),
      ROW(ChartArea, Border(), "Get Border() As Border"),
      ROW(ChartArea, SetAutoScaleFont(false), "Let AutoScaleFont() = Boolean False"),
      ROW(PlotArea, Left(), "Get Left() As Double"),
      ROW(PlotArea, Top(), "Get Top() As Double"),
      ROW(PlotArea, Width(), "Get Width() As Double"),
      ROW(PlotArea, SetWidth(90.5), "Let Width() = Double 90.5"),
      ROW(PlotArea, Height(), "Get Height() As Double"),
      ROW(PlotArea, Interior(), "Get Interior() As Interior"),
      ROW(PlotArea, Border(), "Get Border() As Border"),
      ROW(ChartGroup, SetGapWidth(50), "Let GapWidth() = Long 50"),
      ROW(SeriesCollection, Count(), "Get Count() As Long"),
      ROW(SeriesCollection, Item(1), "Call Item(Long 1) As Series"),
      ROW(SeriesCollection, NewSeries(), "Call NewSeries() As Series"),
      ROW(Series, Name(), "Get Name() As String"),
      ROW(Series, SetName("=Sheet1!$A$1"), R"(Let Name() = String "=Sheet1!$A$1")"),
      ROW(Series, Formula(), "Get Formula() As String"),
      ROW(Series, SetXValues("=Sheet1!$A$1:$A$3"), R"(Let XValues() = String "=Sheet1!$A$1:$A$3")"),
      ROW(Series, Values(), "Get Values() As Variant()"),
      ROW(Series, SetValues("=Sheet1!$B$1:$B$3"), R"(Let Values() = String "=Sheet1!$B$1:$B$3")"),
      ROW(Series, SetBubbleSizes("=Sheet1!R1C1"), R"(Let BubbleSizes() = String "=Sheet1!R1C1")"),
      ROW(Series, ChartType(), "Get ChartType() As Long"),
      ROW(Series, SetChartType(excel::xlColumnClustered), "Let ChartType() = Long 51"),
      ROW(Series, Delete(), "Call Delete()"),
      ROW(Series, HasDataLabels(), "Get HasDataLabels() As Boolean"),
      ROW(Series, SetHasDataLabels(false), "Let HasDataLabels() = Boolean False"),
      ROW(Series, ApplyDataLabels(2), "Call ApplyDataLabels(Long 2)"),
      ROW(Series, DataLabels(), "Call DataLabels() As DataLabels"),
      ROW(Series, Interior(), "Get Interior() As Interior"),
      ROW(Series, Border(), "Get Border() As Border"),
      ROW(Series, SetMarkerForegroundColor(255), "Let MarkerForegroundColor() = Long 255"),
      ROW(Series, SetMarkerBackgroundColor(255), "Let MarkerBackgroundColor() = Long 255"),
      ROW(Series, SetMarkerStyle(8), "Let MarkerStyle() = Long 8"),
      ROW(Series, SetMarkerSize(5), "Let MarkerSize() = Long 5"),
      ROW(DataLabels, Count(), "Get Count() As Long"),
      ROW(DataLabels, Item(1), "Call Item(Long 1) As DataLabel"),
      ROW(DataLabels, Type(), "Get Type() As Variant"),
      ROW(DataLabels, SetPosition(2), "Let Position() = Long 2"),
      ROW(DataLabels, SetHorizontalAlignment(-4108), "Let HorizontalAlignment() = Long -4108"),
      ROW(DataLabels, SetVerticalAlignment(-4108), "Let VerticalAlignment() = Long -4108"),
      ROW(DataLabels, SetOrientation(45), "Let Orientation() = Long 45"),
      ROW(DataLabels, Font(), "Get Font() As Font"),
      ROW(DataLabels, AutoScaleFont(), "Get AutoScaleFont() As Variant"),
      ROW(DataLabels, SetAutoScaleFont(true), "Let AutoScaleFont() = Boolean True"),
      ROW(DataLabel, SetText("12"), R"(Let Text() = String "12")"),
      ROW(Axis, HasTitle(), "Get HasTitle() As Boolean"),
      ROW(Axis, SetHasTitle(true), "Let HasTitle() = Boolean True"),
      ROW(Axis, AxisTitle(), "Get AxisTitle() As AxisTitle"),
      ROW(Axis, MinimumScale(), "Get MinimumScale() As Double"),
      ROW(Axis, SetMinimumScale(-1.5), "Let MinimumScale() = Double -1.5"),
      ROW(Axis, MaximumScale(), "Get MaximumScale() As Double"),
      ROW(Axis, SetMaximumScale(7), "Let MaximumScale() = Double 7"),
      ROW(Axis, SetMajorUnit(2), "Let MajorUnit() = Double 2"),
      ROW(Axis, SetMajorUnitIsAuto(true), "Let MajorUnitIsAuto() = Boolean True"),
      ROW(Axis, SetScaleType(-4133), "Let ScaleType() = Long -4133"),
      ROW(Axis, SetDisplayUnit(-3), "Let DisplayUnit() = Long -3"),
      ROW(Axis, SetCrosses(2), "Let Crosses() = Long 2"),
      ROW(Axis, SetReversePlotOrder(true), "Let ReversePlotOrder() = Boolean True"),
      ROW(Axis, TickLabels(), "Get TickLabels() As TickLabels"),
      ROW(Axis, SetTickLabelPosition(4), "Let TickLabelPosition() = Long 4"),
      ROW(Axis, SetHasMajorGridlines(false), "Let HasMajorGridlines() = Boolean False"),
      ROW(Axis, SetHasMinorGridlines(false), "Let HasMinorGridlines() = Boolean False"),
      ROW(Axis, Border(), "Get Border() As Border"),
      ROW(AxisTitle, Text(), "Get Text() As String"),
      ROW(AxisTitle, SetText("Year"), R"(Let Text() = String "Year")"),
      ROW(AxisTitle, SetOrientation(90), "Let Orientation() = Long 90"),
      ROW(AxisTitle, Font(), "Get Font() As Font"),
      ROW(AxisTitle, AutoScaleFont(), "Get AutoScaleFont() As Variant"),
      ROW(AxisTitle, SetAutoScaleFont(false), "Let AutoScaleFont() = Boolean False"),
      ROW(TickLabels, NumberFormat(), "Get NumberFormat() As String"),
      ROW(TickLabels, NumberFormatLinked(), "Get NumberFormatLinked() As Boolean"),
      ROW(TickLabels, SetNumberFormatLinked(true), "Let NumberFormatLinked() = Boolean True"),
      ROW(Legend, LegendEntries(), "Call LegendEntries() As LegendEntries"),
      ROW(Legend, Position(), "Get Position() As Long"),
      ROW(Legend, SetPosition(-4152), "Let Position() = Long -4152"),
      ROW(Legend, Left(), "Get Left() As Double"),
      ROW(Legend, SetLeft(3), "Let Left() = Double 3"),
      ROW(Legend, Top(), "Get Top() As Double"),
      ROW(Legend, SetTop(3), "Let Top() = Double 3"),
      ROW(Legend, Font(), "Get Font() As Font"),
      ROW(Legend, AutoScaleFont(), "Get AutoScaleFont() As Variant"),
      ROW(Legend, SetAutoScaleFont(false), "Let AutoScaleFont() = Boolean False"),
      ROW(LegendEntries, Count(), "Get Count() As Long"),
      ROW(LegendEntries, Item(1), "Call Item(Long 1) As LegendEntry"),
      ROW(LegendEntry, Delete(), "Call Delete()"),
  };
  return rows;
}

const std::vector<Row>& FormatRows() {
  static const std::vector<Row> rows = {
      ROW(Font, Name(), "Get Name() As Variant"),
      ROW(Font, SetName("Arial"), R"(Let Name() = String "Arial")"),
      ROW(Font, Size(), "Get Size() As Variant"),
      ROW(Font, SetSize(10), "Let Size() = Long 10"),
      ROW(Font, FontStyle(), "Get FontStyle() As Variant"),
      ROW(Font, SetFontStyle("Bold"), R"(Let FontStyle() = String "Bold")"),
      ROW(Font, SetBold(true), "Let Bold() = Boolean True"),
      ROW(Font, Color(), "Get Color() As Variant"),
      ROW(Font, SetColor("0"), R"(Let Color() = String "0")"),
      ROW(Font, Background(), "Get Background() As Variant"),
      ROW(Font, SetBackground(2), "Let Background() = Long 2"),
      ROW(Interior, ColorIndex(), "Get ColorIndex() As Long"),
      ROW(Interior, SetColorIndex(3), "Let ColorIndex() = Long 3"),
      ROW(Interior, Color(), "Get Color() As Long"),
      ROW(Interior, SetColor(255), "Let Color() = Long 255"),
      ROW(Interior, Pattern(), "Get Pattern() As Long"),
      ROW(Interior, SetPattern(1), "Let Pattern() = Long 1"),
      ROW(Interior, PatternColor(), "Get PatternColor() As Long"),
      ROW(Interior, SetPatternColor(255), "Let PatternColor() = Long 255"),
      ROW(Interior, PatternColorIndex(), "Get PatternColorIndex() As Long"),
      ROW(Interior, SetPatternColorIndex(3), "Let PatternColorIndex() = Long 3"),
      ROW(Border, SetLineStyle(1), "Let LineStyle() = Long 1"),
      ROW(Border, SetWeight(2), "Let Weight() = Long 2"),
      ROW(Border, SetColor(255), "Let Color() = Long 255"),
      ROW(ChartFillFormat, Patterned(17), "Call Patterned(Long 17)"),
      ROW(ChartFillFormat, ForeColor(), "Get ForeColor() As ChartColorFormat"),
      ROW(ChartFillFormat, BackColor(), "Get BackColor() As ChartColorFormat"),
      ROW(ChartFillFormat, SetVisible(true), "Let Visible() = Long -1"),
      ROW(ChartColorFormat, SetSchemeColor(2), "Let SchemeColor() = Long 2"),
  };
  return rows;
}

const std::vector<Row>& ShapeRows() {
  static const std::vector<Row> rows = {
      ROW(Shapes, Count(), "Get Count() As Long"),
      ROW(Shapes, Item(1), "Call Item(Long 1) As Shape"),
      ROW(Shapes, Item("VEX_Legend"), R"(Call Item(String "VEX_Legend") As Shape)"),
      ROW(Shapes, AddTextbox(1, 2, 3, 4, 5),
          "Call AddTextbox(Long 1, Double 2, Double 3, Double 4, Double 5) As Shape"),
      ROW(Shapes, AddShape(1, 2, 3, 4, 5),
          "Call AddShape(Long 1, Double 2, Double 3, Double 4, Double 5) As Shape"),
      ROW(Shapes, Range({"a", "b"}), R"(Get Range(Array("a", "b")) As ShapeRange)"),
      ROW(ShapeRange, Name(), "Get Name() As String"),
      ROW(ShapeRange, Width(), "Get Width() As Double"),
      ROW(ShapeRange, Height(), "Get Height() As Double"),
      ROW(ShapeRange, SetLeft(1), "Let Left() = Double 1"),
      ROW(ShapeRange, SetTop(1), "Let Top() = Double 1"),
      ROW(ShapeRange, Group(), "Call Group() As Shape"),
      ROW(Shape, Type(), "Get Type() As Long"),
      ROW(Shape, Name(), "Get Name() As String"),
      ROW(Shape, SetName("VEX_Legend"), R"(Let Name() = String "VEX_Legend")"),
      ROW(Shape, AlternativeText(), "Get AlternativeText() As String"),
      ROW(Shape, SetAlternativeText("VEX_Chart1"), R"(Let AlternativeText() = String "VEX_Chart1")"),
      ROW(Shape, Left(), "Get Left() As Double"),
      ROW(Shape, SetLeft(1), "Let Left() = Double 1"),
      ROW(Shape, Top(), "Get Top() As Double"),
      ROW(Shape, SetTop(1), "Let Top() = Double 1"),
      ROW(Shape, Width(), "Get Width() As Double"),
      ROW(Shape, SetWidth(1), "Let Width() = Double 1"),
      ROW(Shape, Height(), "Get Height() As Double"),
      ROW(Shape, SetHeight(1), "Let Height() = Double 1"),
      ROW(Shape, SetLockAspectRatio(true), "Let LockAspectRatio() = Long -1"),
      ROW(Shape, SetAutoShapeType(9), "Let AutoShapeType() = Long 9"),
      ROW(Shape, Fill(), "Get Fill() As FillFormat"),
      ROW(Shape, Line(), "Get Line() As LineFormat"),
      ROW(Shape, TextFrame(), "Get TextFrame() As TextFrame"),
      ROW(Shape, TextFrame2(), "Get TextFrame2() As TextFrame2"),
      ROW(Shape, Delete(), "Call Delete()"),
      ROW(TextFrame, SetHorizontalAlignment(-4131), "Let HorizontalAlignment() = Long -4131"),
      ROW(TextFrame, SetVerticalAlignment(-4160), "Let VerticalAlignment() = Long -4160"),
      ROW(TextFrame, SetMarginTop(1.5), "Let MarginTop() = Double 1.5"),
      ROW(TextFrame, Characters(), "Call Characters() As Characters"),
      ROW(TextFrame, Characters(201), "Call Characters(Long 201) As Characters"),
      ROW(TextFrame, Characters(1, 5), "Call Characters(Long 1, Long 5) As Characters"),
      ROW(TextFrame2, SetWordWrap(false), "Let WordWrap() = Long 0"),
      ROW(TextFrame2, SetAutoSize(1), "Let AutoSize() = Long 1"),
      ROW(TextFrame2, SetMarginTop(0), "Let MarginTop() = Double 0"),
      ROW(Characters, Text(), "Get Text() As String"),
      ROW(Characters, SetText("text"), R"(Let Text() = String "text")"),
      ROW(Characters, Insert("text"), R"(Call Insert(String "text"))"),
      ROW(Characters, Font(), "Get Font() As Font"),
      ROW(FillFormat, ForeColor(), "Get ForeColor() As ColorFormat"),
      ROW(FillFormat, BackColor(), "Get BackColor() As ColorFormat"),
      ROW(LineFormat, SetVisible(false), "Let Visible() = Long 0"),
      ROW(LineFormat, SetWeight(1.5), "Let Weight() = Double 1.5"),
      ROW(LineFormat, ForeColor(), "Get ForeColor() As ColorFormat"),
      ROW(LineFormat, BackColor(), "Get BackColor() As ColorFormat"),
      ROW(ColorFormat, SetRGB(255), "Let RGB() = Long 255"),
  };
  return rows;
}

std::vector<Row> AllRows() {
  std::vector<Row> all;
  for (const auto* rows : {&BookRows(), &ChartRows(), &FormatRows(), &ShapeRows()}) {
    all.insert(all.end(), rows->begin(), rows->end());
  }
  return all;
}

TEST(WireTest, EveryCallMatchesExcelsReference) {
  for (const Row& row : AllRows()) EXPECT_EQ(row.asked(), row.expected) << row.memberOf << "." << row.call;
}

/// Returns the members that are called in a row, such as "Axis.HasTitle put".
std::set<std::string> MembersIn(const Row& row) {
  static const std::map<std::string, std::string> kKinds = {
      {"Get", " read"}, {"Let", " put"}, {"Call", " called"}};
  const std::size_t begin = row.expected.rfind("; ") == std::string::npos ? 0 : row.expected.rfind("; ") + 2;
  std::set<std::string> members;
  for (const std::size_t start : {std::size_t{0}, begin}) {
    const std::size_t blank = row.expected.find(' ', start);
    const std::string name = row.expected.substr(blank + 1, row.expected.find('(', start) - blank - 1);
    members.insert(row.memberOf + "." + name + kKinds.at(row.expected.substr(start, blank - start)));
  }
  return members;
}

TEST(WireTest, EveryMemberHasARow) {
  // CellReader calls these, and CellReaderTest checks the results
  std::set<std::string> inRows = {"Range.DisplayFormat read", "Range.Formula read", "Range.HasFormula read"};
  for (const Row& row : AllRows()) inRows.merge(MembersIn(row));
  for (const std::string& way : automation::AllWays()) EXPECT_TRUE(inRows.contains(way)) << way;
}

}  // namespace
}  // namespace plotsmith::contract
