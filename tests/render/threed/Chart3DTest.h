#pragma once

#include <string>
#include <vector>

#include "render/cairo/CairoFonts.h"
#include "render/chart/ChartDrawing.h"
#include "tests/support/ChartTest.h"

namespace plotsmith::test {

/// A test of 3-D charts with three series (1, 2 and 3 times the values) and four categories.
class Chart3DTest : public ChartTest {
 protected:
  struct Setup {
    std::string view = R"(<c:rotX val="15"/><c:rotY val="20"/><c:rAngAx val="1"/>)";
    std::string group = "bar3DChart";
    std::string grouping = "clustered";
    std::string direction = "col";
    std::string behind;  ///< Elements after the series in the group.
    std::vector<double> values = {4, 8, 2, 6};
  };

  static std::string Part(const Setup& setup);
  render::Drawing Draw(const Setup& setup);

  /// Returns the items of a role, or of one series if its number isn't 0.
  static std::vector<const render::Item*> ItemsOf(const render::Drawing& drawing, render::Role role,
                                                  int series = 0);
  static render::Color FillOf(const render::Item& item);

  render::CairoFonts fonts_;
  render::Notes notes_;
};

}  // namespace plotsmith::test
