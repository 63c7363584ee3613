#include <vector>

#include "builder/state/BuilderVariables.h"
#include "builder/state/PersistedProperties.h"
#include "common/Documents.h"
#include "tests/support/HostTest.h"

namespace plotsmith {
namespace {

using S = std::string;

class PersistedPropertiesTest : public test::HostTest {};

TEST_F(PersistedPropertiesTest, StoredPropertiesAndTheirDefaults) {
  auto document = NewXMLDocument();
  const auto read = [&](const S& persist) {
    EXPECT_TRUE(document.loadXML("<chart><auto-persistence>" + persist + "</auto-persistence></chart>"));
    RetrievePersistedProperties(document.documentElement());
  };
  read("<persist property=\"legend-left\" value=\"0\"/>");
  EXPECT_EQ(mLegendPosition, runtime::Variant(0)) << "coordinates override a position, also at the edge";
  EXPECT_EQ(mLegendTop, kUnsetPlace);
  read(
      "<persist property=\"legend-position\" value=\"-4131\"/><persist property=\"bucket-label-font-color\" "
      "value=\"\"/><persist property=\"label-font-name\" value=\"\"/>"
      "<persist property=\"LabelAxis-font-autoscale\" value=\"0\"/><persist property=\"LABEL-FONT-SIZE\" "
      "value=\"20\"/>");
  EXPECT_EQ(mLegendPosition, runtime::Variant("-4131"));
  EXPECT_EQ(mLegendLeft, kUnsetPlace) << "each call starts from the defaults";
  EXPECT_EQ(mBucketLabelFont.vColor, runtime::Variant(16777215));
  EXPECT_EQ(mLabelFont.vName, runtime::Variant("")) << "labels use an empty text unchanged";
  EXPECT_EQ(mLabelAxisFont.vAutoScale, runtime::Variant(false));
  EXPECT_EQ(mLabelFont.vSize, runtime::Variant(9));
  EXPECT_TRUE(mLabelFontBackgroundColor.IsEmpty());
  read(
      "<persist property=\"label-font-size\" value=\"11\"/><persist property=\"legend-top\" value=\"high\"/>"
      "<persist property=\"label-font-size\" value=\"12\"/>");
  EXPECT_EQ(mLabelFont.vSize, runtime::Variant(11.0)) << "values that were read before the failure are kept";
  EXPECT_EQ(Messages(),
            std::vector<S>{"Brindle Plotsmith: PSChartBuilder.RetrievePersistedProperties\nType mismatch"});
}

}  // namespace
}  // namespace plotsmith
