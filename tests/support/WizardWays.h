#pragma once

#include <string>
#include <vector>

namespace plotsmith::test {

/// The lines that lead to a page, in a copy of examples/data/orders.xlsx with a chart.
struct Way {
  std::string page, lines;
};
/// The lines that lead to the page of tables.
extern const std::string kToTable;
/// The ways to each page of the wizard.
extern const std::vector<Way> kWays;

}  // namespace plotsmith::test
