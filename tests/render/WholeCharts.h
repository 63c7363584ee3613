#pragma once

#include <map>
#include <string>
#include <utility>

namespace plotsmith::test {

/// A chart element, and the shapes on the chart.
struct Whole {
  Whole(std::string part, std::string drawn = "") : chart(std::move(part)), shapes(std::move(drawn)) {}
  std::string chart, shapes;
};

/// Returns the charts that are compared as whole drawings, by name.
std::map<std::string, Whole> WholeCharts();

/// Return XML of shapes on a chart: all forms, with or without adjustments, and rectangles with texts.
///@{
std::string AllFormsXml(bool adjusted);
std::string ShapeTextsXml();
///@}

}  // namespace plotsmith::test
