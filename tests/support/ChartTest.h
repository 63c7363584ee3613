#pragma once

#include <functional>
#include <string>

#include "host/excel/Excel.h"
#include "tests/support/HostTest.h"

namespace plotsmith::test {

/// A chart part around what stands in `chart`, and behind it.
std::string ChartPartXml(const std::string& chart, const std::string& behind = "");
/// What stands between two texts, the first included.
std::string Between(const std::string& text, const std::string& from, const std::string& to);
bool Has(const std::string& text, const std::string& what);
std::size_t CountOf(const std::string& text, const std::string& what);
void ExpectError1004(const std::function<void()>& call);

/// What in a chart part is not as ECMA-376-1, 21.2.2, wants it, one complaint a line: children of
/// groups, series, labels, axes and their like in their order and number, groups and axes that name each
/// other, and positions of labels that Excel takes for damage.
std::string ChartComplaints(const std::string& part);

void DeleteSeries(excel::Chart& chart);
/// One series for a row of the sheet, as a bubble.
excel::Ref<excel::Series> AddBubble(excel::Chart& chart, int row);
/// A series of the amounts by region, of a type of its own.
excel::Ref<excel::Series> AddOfType(excel::Chart& chart, std::int32_t type);

/// Tests of the chart view on a real file: a sheet of sales with one chart.
class ChartTest : public HostTest {
 protected:
  /// Opens a workbook with a chart of 384 by 270 points on its sheet, with shapes on it if any are given.
  excel::Ref<excel::Chart> OpenChart(const std::string& part, const std::string& userShapes = "");
  /// The chart part after a call on the chart, saved and read again.
  std::string After(const std::string& part, const std::function<void(excel::Chart&)>& call);
  /// The same of a call that must leave the part without complaints.
  std::string Sound(const std::string& part, const std::function<void(excel::Chart&)>& call);
  excel::Ref<excel::Chart> ChartOf(const std::string& sheet);
  static excel::Ref<excel::Chart> ChartOf(const excel::Ref<excel::Shape>& shape);
};

}  // namespace plotsmith::test
