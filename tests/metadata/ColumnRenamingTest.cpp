#include "common/RunVariables.h"
#include "metadata/ColumnRenaming.h"
#include "metadata/MetadataStore.h"
#include "metadata/TableDefinitions.h"
#include "tests/support/HostTest.h"

namespace plotsmith {
namespace {

using namespace test;

class ColumnRenamingTest : public HostTest {};

TEST_F(ColumnRenamingTest, DefinitionsFollowRenamedColumns) {
  const std::string axes =
      "<axes><axis type=\"label\" label=\"Region\" sticky=\"no\"/><axis type=\"value\" label=\"Region\" "
      "sticky=\"yes\"/>"
      "<axis type=\"value\" label=\"region\" sticky=\"no\"/><axis type=\"value\" label=\"Region\"/></axes>";
  Definition first{"VEX_Chart1"};
  first.rest = axes;
  first.values = "<values><column name=\"Region\"/></values>";
  Definition other = first;
  other.id = "VEX_Chart2";
  other.attributes = "table-id=\"data1\"";
  Open(SalesBook({first, other}));
  UpdateChartColumnNames("Data1", {"Region", "Area"}, {"Area", "Zone"});
  SaveAndReopen();
  RetrieveTableDefinitions();
  RetrieveChartDefinitions();
  const std::string xml = colCharts->Item("VEX_Chart1").xml();
  EXPECT_EQ(xml.find("\"Area\""), std::string::npos) << "later names see a new name";
  for (const char* expected :
       {"<categories headings-in=\"rows\"><column name=\"Zone\"/>", "<values><column name=\"Zone\"/>",
        "type=\"label\" label=\"Zone\" sticky=\"no\"", "label=\"Region\" sticky=\"yes\"",
        "label=\"region\" sticky=\"no\"", "type=\"value\" label=\"Region\"/>"}) {
    EXPECT_NE(xml.find(expected), std::string::npos) << expected << "\n" << xml;
  }
  const std::string untouched = colCharts->Item("VEX_Chart2").xml();
  EXPECT_NE(untouched.find("<column name=\"Region\"/>"), std::string::npos);
  EXPECT_NE(untouched.find("ps-chart-schema-version"), std::string::npos) << "saved nevertheless";

  UpdateChartColumnNames("Data1", {"Zone", "Product"}, {"Region"});
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_EQ(Messages()[0], "Brindle Plotsmith: PSFunctions.UpdateChartColumnNames\nSubscript out of range");
}

}  // namespace
}  // namespace plotsmith
