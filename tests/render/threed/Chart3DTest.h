#pragma once

#include "tests/render/DrawingTest.h"

namespace plotsmith::test {

/// A test of 3-D charts with three series (1, 2 and 3 times the values) and a category for each value. A pie
/// has only the first series.
class Chart3DTest : public DrawingTest {
 protected:
  struct Setup {
    S view = R"(<c:rotX val="15"/><c:rotY val="20"/><c:rAngAx val="1"/>)";
    S group = "bar3DChart";
    S grouping = "clustered";
    S direction = "col";
    S inside;  ///< Elements in each series.
    S behind;  ///< Elements after the series in the group.
    Numbers values = {4, 8, 2, 6};
  };

  static S Part(const Setup& setup);
  Drawing Draw(const Setup& setup) { return DrawPart(Part(setup)); }
};

}  // namespace plotsmith::test
