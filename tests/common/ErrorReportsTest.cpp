#include "builder/ChartRefreshDriver.h"
#include "builder/SourceValidation.h"
#include "builder/families/AbcChart.h"
#include "builder/families/BubbleChart.h"
#include "builder/families/BubbleQuadrants.h"
#include "builder/families/PieChart.h"
#include "builder/families/StrategicBucketChart.h"
#include "builder/looks/ChartComment.h"
#include "builder/maps/BubbleMap.h"
#include "builder/maps/PivotMap.h"
#include "builder/maps/StrategicBucketMap.h"
#include "builder/sheet/DataSheet.h"
#include "builder/sheet/DataSheetFinishing.h"
#include "builder/state/PersistedProperties.h"
#include "common/Worksheets.h"
#include "metadata/MetadataStore.h"
#include "metadata/NewChart.h"
#include "metadata/StrategicBuckets.h"
#include "metadata/TableDefinitions.h"
#include "tests/support/HostTest.h"

namespace plotsmith {
namespace {

using S = std::string;

/// Procedures without a workbook, a chart or a definition. Each reports Nothing under its own name, and
/// returns the value that its caller treats as a failure.
class ErrorReportsTest : public test::HostTest {
 protected:
  dom::IXMLDOMElement element_;
  dom::IXMLDOMDocument2 document_;
};

TEST_F(ErrorReportsTest, EachProcedureReportsUnderItsName) {
  const struct {
    const char* name;
    std::function<void()> call;
  } cases[] = {
      {"PSChartBuilder.PopulateABCChart", [&] { PopulateABCChart(element_); }},
      {"PSChartBuilder.SetABCChartAttributes", [&] { SetABCChartAttributes(element_); }},
      {"PSChartBuilder.PopulateBubbleChart", [&] { PopulateBubbleChart(element_); }},
      {"PSChartBuilder.SetBubbleChartAttributes", [&] { SetBubbleChartAttributes(element_); }},
      {"PSChartBuilder.BuildBubbleMap", [&] { EXPECT_FALSE(BuildBubbleMap(element_)); }},
      {"PSChartBuilder.SetBubbleChartQuadrants", [&] { SetBubbleChartQuadrants(element_); }},
      {"PSChartBuilder.SetChartComment", [&] { SetChartComment(element_); }},
      {"PSChartBuilder.PopulateAllCharts", [&] { PopulateAllCharts(); }},
      {"PSChartBuilder.PopulateModifiedCharts", [&] { PopulateModifiedCharts("T"); }},
      {"PSChartBuilder.GetSourceData", [&] { EXPECT_FALSE(GetSourceData(element_)); }},
      {"PSChartBuilder.CreateDataSheet", [&] { EXPECT_FALSE(CreateDataSheet()); }},
      {"PSChartBuilder.AdjustBubbleSizes", [&] { AdjustBubbleSizes(element_); }},
      {"PSChartBuilder.InsertBucketData", [&] { InsertBucketData(element_); }},
      {"PSChartBuilder.RetrievePersistedProperties", [&] { RetrievePersistedProperties(element_); }},
      {"PSChartBuilder.PopulatePieChart", [&] { PopulatePieChart(element_); }},
      {"PSChartBuilder.SetPieChartAttributes", [&] { SetPieChartAttributes(element_); }},
      {"PSChartBuilder.BuildPivotMap", [&] { EXPECT_FALSE(BuildPivotMap(element_)); }},
      {"PSChartBuilder.ValidateSourceData", [&] { EXPECT_FALSE(ValidateSourceData(element_)); }},
      {"PSChartBuilder.ValidateSourceColumn",
       [&] { EXPECT_FALSE(ValidateSourceColumn(element_, element_, "")); }},
      {"PSChartBuilder.BucketColumnPosition",
       [&] { EXPECT_EQ(BucketColumnPosition("A", "bucket-name-column", element_), 0); }},
      {"PSChartBuilder.PopulateStrBuckChart", [&] { PopulateStrBuckChart(element_); }},
      {"PSChartBuilder.SetStrBuckChartAttributes", [&] { SetStrBuckChartAttributes(element_); }},
      {"PSChartBuilder.BuildStrBuckMap", [&] { EXPECT_FALSE(BuildStrBuckMap(element_)); }},
      {"PSFunctions.RetrieveChartDefinitions", [&] { RetrieveChartDefinitions(); }},
      {"PSFunctions.SaveChartDefinition", [&] { SaveChartDefinition(document_); }},
      {"PSFunctions.CreateEmptyChart", [&] { CreateEmptyChart("S", "1"); }},
      {"PSFunctions.GetBucketCandidates", [&] { GetBucketCandidates(element_); }},
      {"PSFunctions.GetStrategicBuckets", [&] { EXPECT_FALSE(GetStrategicBuckets(document_)); }},
      {"PSFunctions.RetrieveTableDefinitions", [&] { RetrieveTableDefinitions(); }},
      {"PSFunctions.GetColumnDefinitionAsXML",
       [&] { EXPECT_FALSE(GetColumnDefinitionAsXML(nullptr, 1, 1, 1)); }},
      {"CommonFunctions.InsertSheetRow", [&] { InsertSheetRow(nullptr, 1); }},
  };
  for (const auto& c : cases) {
    const auto before = static_cast<std::ptrdiff_t>(Messages().size());
    c.call();
    const std::vector<S> said(Messages().begin() + before, Messages().end());
    EXPECT_EQ(said, std::vector<S>{S("Brindle Plotsmith: ") + c.name +
                                   "\nObject variable or With block variable not set"});
  }
}

}  // namespace
}  // namespace plotsmith
