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
void ExpectError1004(const std::function<void()>& call);

/// What in a chart part is not as ECMA-376 Part 1, 21.2.2, wants it, one complaint a line: children of
/// groups, series, labels, axes and their like in their order and number, groups and axes that name each
/// other, and positions of labels that Excel takes for damage.
std::string ChartComplaints(const std::string& part);

/// Tests of the chart view on a real file: a sheet of sales with one chart.
class ChartTest : public HostTest {
 protected:
  /// The chart part after a call on the chart, saved and read again.
  std::string After(const std::string& part, const std::function<void(excel::Chart&)>& call);
  excel::Ref<excel::Chart> ChartOf(const std::string& sheet);
};

}  // namespace plotsmith::test
