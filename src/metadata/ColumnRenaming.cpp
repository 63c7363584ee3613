#include "metadata/ColumnRenaming.h"

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/RunVariables.h"
#include "common/YieldToHost.h"
#include "dom/Dom.h"
#include "metadata/MetadataStore.h"
#include "metadata/TableDefinitions.h"
#include "runtime/RuntimeError.h"

namespace plotsmith {

using dom::IXMLDOMElement;

namespace {

/// Renames a column in a definition, together with axis labels that contain only its name. `newName` returns
/// the new name; it is called only if the old name is found.
template <class NewName>
void RenameColumn(const dom::IXMLDOMDocument2& oDoc, const std::string& sOld, const NewName& newName) {
  for (IXMLDOMElement oColumn : oDoc.selectNodes("//column")) {
    if (GetAttributeText(oColumn, "name") == sOld) oColumn.setAttribute("name", newName());
    // The axes are updated for each column, so a definition without columns keeps its labels. A label that
    // the user typed is sticky and doesn't change.
    for (IXMLDOMElement oAxis : oDoc.selectNodes("//axis")) {
      const std::string sType = GetAttributeText(oAxis, "type");
      if ((sType == "value" || sType == "label") && GetAttributeText(oAxis, "label") == sOld &&
          GetAttributeText(oAxis, "sticky") == "no") {
        oAxis.setAttribute("label", newName());
      }
    }
  }
}

}  // namespace

void UpdateChartColumnNames(const std::string& sTableRangeName,
                            const std::vector<std::string>& aOldColumnNames,
                            const std::vector<std::string>& aNewColumnNames) {
  ReportErrors("PSFunctions.UpdateChartColumnNames", [&] {
    RetrieveTableDefinitions();
    if (!colCharts) RetrieveChartDefinitions();
    for (const auto& oDoc : *colCharts) {
      if (GetAttributeText(oDoc.selectSingleNode("chart"), "table-id") == sTableRangeName) {
        for (std::size_t i = 0; i < aOldColumnNames.size(); ++i) {
          RenameColumn(oDoc, aOldColumnNames[i], [&] {
            if (i >= aNewColumnNames.size()) throw runtime::RuntimeError(runtime::error::kSubscript);
            return aNewColumnNames[i];
          });
        }
      }
      SaveChartDefinition(oDoc);
      YieldToHost();
    }
  });
}

}  // namespace plotsmith
