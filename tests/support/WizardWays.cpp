#include "tests/support/WizardWays.h"

namespace plotsmith::test {

const std::string kToTable =
    "page frmPSSelectAction; select grdCharts #1; press cmdNew; page frmPSSelectTable; select grdTables "
    "Data1; ";

namespace {

std::string ToLayout(int type, const std::string& page) {
  return kToTable + "choose optType(" + std::to_string(type) + "); press cmdNext; page " + page + "; ";
}

}  // namespace

const std::vector<Way> kWays = {
    {"frmPSSelectAction", "page frmPSSelectAction; select grdCharts #1; "},
    {"frmPSSelectTable", kToTable + "choose optType(1); "},
    {"frmPSLayoutABC", ToLayout(1, "frmPSLayoutABC") + "type txtTitle A; "},
    {"frmPSLayoutPie", ToLayout(3, "frmPSLayoutPie") + "type txtTitle A; select lstCategories Region; "},
    {"frmPSLayoutBubble", ToLayout(4, "frmPSLayoutBubble")},
    {"frmPSLayoutStrBuck", ToLayout(5, "frmPSLayoutStrBuck")},
    {"frmPSChartLocation",
     ToLayout(1, "frmPSLayoutABC") + "type txtTitle A; press cmdNext; page frmPSChartLocation; "},
};

}  // namespace plotsmith::test
