#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "xlsx/drawing/DrawingSchema.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

/// Children by ECMA-376-1, 21.2.2 and 20.1. If the schema has a choice, one of its elements is used.
constexpr std::pair<const char*, const char*> kOrders[] = {
    {"chartSpace",
     "date1904 lang roundedCorners style clrMapOvr pivotSource protection chart spPr txPr externalData "
     "printSettings userShapes extLst"},
    {"chart",
     "title autoTitleDeleted pivotFmts view3D floor sideWall backWall plotArea legend plotVisOnly "
     "dispBlanksAs showDLblsOverMax extLst"},
    {"plotArea", "layout barChart catAx dTable spPr extLst"},
    {"barChart", "barDir grouping varyColors ser dLbls gapWidth overlap serLines axId extLst"},
    {"bar3DChart", "barDir grouping varyColors ser dLbls gapWidth gapDepth shape axId extLst"},
    {"lineChart", "grouping varyColors ser dLbls dropLines hiLowLines upDownBars marker smooth axId extLst"},
    {"areaChart", "grouping varyColors ser dLbls dropLines axId extLst"},
    {"pieChart", "varyColors ser dLbls firstSliceAng extLst"},
    {"doughnutChart", "varyColors ser dLbls firstSliceAng holeSize extLst"},
    {"ofPieChart", "ofPieType varyColors ser dLbls gapWidth serLines extLst"},
    {"radarChart", "radarStyle varyColors ser dLbls axId extLst"},
    {"scatterChart", "scatterStyle varyColors ser dLbls axId extLst"},
    {"surfaceChart", "wireframe ser bandFmts axId extLst"},
    {"bubbleChart", "varyColors ser dLbls bubble3D bubbleScale showNegBubbles sizeRepresents axId extLst"},
    {"ser",
     "idx order tx spPr invertIfNegative pictureOptions dPt dLbls trendline errBars cat val shape extLst"},
    {"catAx",
     "axId scaling delete axPos majorGridlines minorGridlines title numFmt majorTickMark minorTickMark "
     "tickLblPos spPr "
     "txPr crossAx crosses auto lblAlgn lblOffset tickLblSkip tickMarkSkip noMultiLvlLbl extLst"},
    {"valAx",
     "axId scaling delete axPos majorGridlines minorGridlines title numFmt majorTickMark minorTickMark "
     "tickLblPos spPr txPr crossAx crossesAt crossBetween majorUnit minorUnit dispUnits extLst"},
    {"dateAx",
     "axId scaling delete axPos majorGridlines minorGridlines title numFmt majorTickMark minorTickMark "
     "tickLblPos spPr txPr crossAx crosses auto lblOffset baseTimeUnit majorUnit majorTimeUnit minorUnit "
     "minorTimeUnit extLst"},
    {"scaling", "logBase orientation max min extLst"},
    {"title", "tx layout overlay spPr txPr extLst"},
    {"legend", "legendPos legendEntry layout overlay spPr txPr extLst"},
    {"layout", "manualLayout extLst"},
    {"manualLayout", "layoutTarget xMode yMode wMode hMode x y w h extLst"},
    {"dLbls",
     "dLbl numFmt spPr txPr dLblPos showLegendKey showVal showCatName showSerName showPercent showBubbleSize "
     "separator showLeaderLines leaderLines extLst"},
    {"spPr", "xfrm prstGeom solidFill ln effectLst scene3d sp3d extLst"},
    {"ln", "noFill prstDash round headEnd tailEnd extLst"},
    {"txPr", "bodyPr lstStyle p"},
};

TEST(DrawingSchemaTest, ChildrenAreInTheOrderOfTheSchema) {
  for (const auto& [parent, children] : kOrders) {
    std::vector<S> names;
    std::istringstream words(children);
    for (S word; words >> word;) names.push_back(word);
    pugi::xml_document document;
    const pugi::xml_node node = document.append_child((S("c:") + parent).c_str());
    // from the last to the first, so that each one has to be inserted before all others
    for (auto name = names.rbegin(); name != names.rend(); ++name) schema::Ensure(node, *name);
    S made;
    for (const pugi::xml_node& child : node.children()) {
      const S name = child.name();
      made += (made.empty() ? "" : " ") + name.substr(name.find(':') + 1);
    }
    EXPECT_EQ(made, children) << parent;
  }
}

}  // namespace
}  // namespace plotsmith::xlsx
