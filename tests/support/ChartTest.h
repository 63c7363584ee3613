#pragma once

#include <functional>
#include <string>

#include "host/excel/Excel.h"
#include "tests/support/HostTest.h"

namespace plotsmith::test {

/// Returns a chart part with the contents of `chart` in the chart element and `behind` after it.
std::string ChartPartXml(const std::string& chart, const std::string& behind = "");
/// Returns the text from `from`, inclusive, to the next `to`, exclusive.
std::string Between(const std::string& text, const std::string& from, const std::string& to);
bool Has(const std::string& text, const std::string& what);
void ExpectError1004(const std::function<void()>& call);

/// Returns the errors of a chart part according to ECMA-376-1, 21.2.2, one per line: order and number of the
/// children of groups, series, labels, axes and so on; references between groups and axes; and label
/// positions that Excel rejects.
std::string ChartComplaints(const std::string& part);

void DeleteSeries(excel::Chart& chart);
/// Adds a series with one bubble for a row of the sheet.
excel::Ref<excel::Series> AddBubble(excel::Chart& chart, int row);
/// Adds a series of the amounts by region with its own chart type.
excel::Ref<excel::Series> AddOfType(excel::Chart& chart, std::int32_t type);

/// A test of the host's chart on a real file: a sheet of sales with one chart.
class ChartTest : public HostTest {
 protected:
  /// Opens a workbook with a chart of 384 by 270 points, and optionally shapes on the chart.
  excel::Ref<excel::Chart> OpenChart(const std::string& part, const std::string& userShapes = "");
  /// Returns the chart part after a call on the chart, from the saved file.
  std::string After(const std::string& part, const std::function<void(excel::Chart&)>& call);
  /// Returns the same, and checks that the part has no errors.
  std::string Sound(const std::string& part, const std::function<void(excel::Chart&)>& call);
  excel::Ref<excel::Chart> ChartOf(const std::string& sheet);
  static excel::Ref<excel::Chart> ChartOf(const excel::Ref<excel::Shape>& shape);
};

}  // namespace plotsmith::test
