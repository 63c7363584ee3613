#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "host/excel/Excel.h"
#include "tests/support/HostTest.h"

namespace plotsmith::test {

using Lines = std::vector<std::string>;

/// A test of what the drawing of a chart asks the host for, and of what is on the chart then.
class ChartCallsTest : public HostTest {
 protected:
  /// The calls on the chart during a refresh of the book.
  Lines ChartCalls(const PlainBook& book, const std::string& version = "16.0");
  /// The same of a refresh of the book that is open.
  Lines ChartCalls();
  /// The first chart on the sheet Charts.
  excel::Ref<excel::Chart> Chart();
};

/// The lines that hold a text.
Lines With(const Lines& lines, const std::string& text);
/// The lines, those that hold one of the texts only up to their value: "Chart.PlotArea.Width".
Lines WithoutValues(Lines lines, std::initializer_list<std::string> texts);

}  // namespace plotsmith::test
