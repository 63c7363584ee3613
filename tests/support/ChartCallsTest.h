#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "host/excel/Excel.h"
#include "tests/support/HostTest.h"

namespace plotsmith::test {

using Lines = std::vector<std::string>;

/// A test of the calls that drawing a chart makes to the host, and of the resulting chart.
class ChartCallsTest : public HostTest {
 protected:
  /// Returns the calls on the chart during a refresh of the workbook.
  Lines ChartCalls(const PlainBook& book, const std::string& version = "16.0");
  /// Returns the calls during a refresh of the open workbook.
  Lines ChartCalls();
  /// Returns the first chart on the sheet Charts.
  excel::Ref<excel::Chart> Chart();
};

/// Returns the lines that contain a text.
Lines With(const Lines& lines, const std::string& text);
/// Returns the lines. Those that contain one of the texts end before their value: "Chart.PlotArea.Width".
Lines WithoutValues(Lines lines, std::initializer_list<std::string> texts);

}  // namespace plotsmith::test
