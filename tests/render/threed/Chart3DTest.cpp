#include "tests/render/threed/Chart3DTest.h"

namespace plotsmith::test {

S Chart3DTest::Part(const Setup& setup) {
  const bool isPie = setup.group == "pie3DChart", hasDepth = setup.grouping == "standard";
  Texts names;
  while (names.size() < setup.values.size()) names.push_back("Q" + std::to_string(names.size() + 1));
  S series;
  for (int i = 0; i < (isPie ? 1 : 3); ++i) {
    Numbers values = setup.values;
    for (double& value : values) value *= i + 1;
    series += SeriesXml(i, values, setup.inside, "", CategoriesXml(names));
  }
  const S direction = setup.group == "bar3DChart" ? "<c:barDir val=\"" + setup.direction + "\"/>" : "";
  const S plot = isPie ? "<c:pie3DChart>" + series + setup.behind + "</c:pie3DChart>"
                       : GroupXml(setup.group, direction + "<c:grouping val=\"" + setup.grouping + "\"/>",
                                  series, setup.behind + (hasDepth ? "<c:axId val=\"3\"/>" : "")) +
                             AxesXml("", "<c:majorGridlines/>") + (hasDepth ? DepthAxisXml() : "");
  return ChartPartXml(Plot3DXml(setup.view, plot));
}

}  // namespace plotsmith::test
