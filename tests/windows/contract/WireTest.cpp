#include <gtest/gtest.h>

#include "tests/windows/contract/FakeDispatch.h"
#include "tests/windows/contract/PortContract.h"
#include "windows/excel/Proxy.h"

namespace plotsmith::contract {
namespace {

/// Returns the letters for the type of a VARIANT.
std::string TypeOf(const VARIANT& value) {
  switch (V_VT(&value)) {
    case VT_BOOL:
      return "bool ";
    case VT_I4:
      return "long ";
    case VT_R8:
      return "double ";
    case VT_BSTR:
      return "text ";
    case VT_DISPATCH:
      return "object";
    case VT_ERROR:
      return "missing";
    default:
      return com::IsArray(value) ? "array " : "type " + std::to_string(V_VT(&value)) + " ";
  }
}

std::string Sent(const VARIANT& value) {
  if (com::IsArray(value)) return TypeOf(value) + Words(com::ListOf(value));
  if (V_VT(&value) == VT_DISPATCH || com::IsMissing(value)) return TypeOf(value);
  return TypeOf(value) + Words(com::FromVariant(value));
}

/// Records the calls that a class of the port makes to Excel, each as "kind: arguments". All objects that the
/// fake returns are the fake itself.
template <class T, class Use>
std::string Asked(const Use& use) {
  std::string asked;
  FakeDispatch* self = nullptr;
  FakeDispatch excel([&](WORD flags, const DISPPARAMS& sent, VARIANT* answer, EXCEPINFO*) {
    asked += (asked.empty() ? "" : "; ") + std::string(flags == DISPATCH_PROPERTYGET   ? "get"
                                                       : flags == DISPATCH_PROPERTYPUT ? "put"
                                                       : flags == DISPATCH_METHOD      ? "call"
                                                                                       : "several kinds");
    for (UINT i = sent.cArgs; i-- > 0;) asked += (i + 1 == sent.cArgs ? ": " : ", ") + Sent(sent.rgvarg[i]);
    if (answer != nullptr) *answer = com::ToVariant(static_cast<IDispatch*>(self)).Detach();
    return S_OK;
  });
  self = &excel;
  use(*proxies::Wrap<T>(com::ComPtr<IDispatch>(&excel)));
  return asked;
}

TEST(WireTest, CallsAreAsExcelHasThem) {
  EXPECT_EQ(Asked<excel::Shape>([](auto& shape) { shape.SetLockAspectRatio(true); }), "put: long -1");
  EXPECT_EQ(Asked<excel::LineFormat>([](auto& line) { line.SetVisible(false); }), "put: long 0");
  EXPECT_EQ(Asked<excel::Axis>([](auto& axis) { axis.SetHasTitle(true); }), "put: bool True");
  EXPECT_EQ(Asked<excel::Axis>([](auto& axis) { axis.SetMajorUnit(2); }), "put: double 2");
  EXPECT_EQ(Asked<excel::Chart>([](auto& chart) { chart.SetHasAxis(1, false); }), "put: long 1, bool False");
  EXPECT_EQ(Asked<excel::Chart>([](auto& chart) { chart.Axes(2, 1); }), "call: long 2, long 1");
  EXPECT_EQ(Asked<excel::Chart>([](auto& chart) { chart.SeriesCollection(); }), "call");
  EXPECT_EQ(Asked<excel::Chart>([](auto& chart) { chart.PlotArea(); }), "get");
  EXPECT_EQ(Asked<excel::Workbook>([](auto& book) { book.SetColors(3, 255); }), "put: long 3, long 255");
  EXPECT_EQ(Asked<excel::Workbook>([](auto& book) { book.BuiltinDocumentProperties("Title"); }),
            "get; get: text \"Title\"");
  EXPECT_EQ(Asked<excel::Sheets>([](auto& sheets) { sheets.Item("Data1"); }), "get: text \"Data1\"");
  EXPECT_EQ(Asked<excel::Sheets>([](auto& sheets) { sheets.Add(nullptr, sheets.Item(2)); }),
            "get: long 2; call: missing, object");
  EXPECT_EQ(Asked<excel::Names>([](auto& names) { names.Item(2); }), "call: long 2");
  EXPECT_EQ(Asked<excel::Shapes>([](auto& shapes) { shapes.Range({"a", "b"}); }), "get: array \"a\", \"b\"");
  EXPECT_EQ(Asked<excel::TextFrame>([](auto& frame) { frame.Characters(); }), "call");
  EXPECT_EQ(Asked<excel::TextFrame>([](auto& frame) { frame.Characters(201); }), "call: long 201");
  EXPECT_EQ(Asked<excel::TextFrame>([](auto& frame) { frame.Characters(1, 5); }), "call: long 1, long 5");
  EXPECT_EQ(Asked<excel::Font>([](auto& font) { font.SetColor("0"); }), "put: text \"0\"");
  EXPECT_EQ(Asked<excel::Worksheet>([](auto& sheet) { sheet.SetCellValueAt(3, 4, 2.5); }),
            "get: long 3, long 4; put: double 2.5");
  EXPECT_EQ(
      Asked<excel::Range>([](auto& range) { range.Sort(range.Rows(), 2, 1, 1, false, 1); }),
      "get; call: object, long 2, missing, missing, missing, missing, missing, long 1, long 1, bool False, "
      "long 1");
}

TEST(WireTest, AMacroGetsThirtyArguments) {
  std::string thirty = "call: text \"VEXEvents.VEXChartRefreshStarted\", text \"VEX_Chart1\"";
  for (int i = 0; i < 29; ++i) thirty += ", missing";
  EXPECT_EQ(Asked<excel::Application>([](auto& application) {
              application.Run("VEXEvents.VEXChartRefreshStarted", {"VEX_Chart1"});
            }),
            thirty);
}

}  // namespace
}  // namespace plotsmith::contract
