#include "tests/support/BlockTest.h"

#include "builder/SourceValidation.h"
#include "builder/maps/PivotMap.h"
#include "builder/sheet/DataSheet.h"
#include "builder/state/BuilderVariables.h"
#include "common/Documents.h"
#include "metadata/TableDefinitions.h"

namespace plotsmith::test {

std::string BlockTest::Block(const Definition& definition) {
  auto document = NewXMLDocument();
  EXPECT_TRUE(document.loadXML(definition.Xml()));
  chart_ = document.documentElement();
  mChartType = definition.type;
  RetrieveTableDefinitions();
  if (!ValidateSourceData(chart_)) return "(invalid)";
  if (!BuildPivotMap(chart_)) return "(no map)";
  if (!PopulateDataSheetOffi2007(chart_)) return "(no block)";
  return BlockNow();
}

std::string BlockTest::BlockNow() {
  const int start = GetAttributeLong(chart_, "data-start-row");
  return Cells("VEX_ChartData", start, 2, start + mCategoryCount, mSeriesCount + 2);
}

std::string Columns(const std::string& group, std::initializer_list<std::string> names,
                    const std::string& headingsIn) {
  std::string xml = "<" + group + " headings-in=\"" + headingsIn + "\">";
  for (const std::string& name : names) xml += "<column name=\"" + name + "\"/>";
  return xml + "</" + group + ">";
}

}  // namespace plotsmith::test
