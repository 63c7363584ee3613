#include "metadata/StrategicBuckets.h"

#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/YieldToHost.h"
#include "runtime/Ref.h"
#include "runtime/Strings.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMDocument2;
using dom::IXMLDOMElement;
using runtime::Dictionary;
using runtime::Ref;

namespace {

Dictionary UpperCasedNames(const dom::IXMLDOMNodeList& aColumns) {
  Dictionary oNames;
  for (const IXMLDOMElement& oColumn : aColumns) {
    oNames.Item(runtime::UCase(GetAttributeText(oColumn, "name"))) = 1;
  }
  return oNames;
}

}  // namespace

Ref<DocumentCollection> GetBucketCandidates(const IXMLDOMElement& oTableElement) {
  auto colCandidates = runtime::MakeRef<DocumentCollection>();
  ReportErrors("PSFunctions.GetBucketCandidates", [&] {
    const std::string sSourceID = GetAttributeText(oTableElement, "id");
    const Dictionary oLabels = UpperCasedNames(oTableElement.selectNodes("label-column"));
    const Dictionary oNumbers = UpperCasedNames(oTableElement.selectNodes("number-column"));
    for (const IXMLDOMDocument2& oDoc : *colTables) {
      const auto oTable = oDoc.selectSingleNode("table");
      const std::string sID = GetAttributeText(oTable, "id");
      if (sID != sSourceID && GetAttributeText(oTable, "is-bucket-candidate") == "yes" &&
          oLabels.Exists(runtime::UCase(GetAttributeText(oTable, "bucket-name-column"))) &&
          oNumbers.Exists(runtime::UCase(GetAttributeText(oTable, "bucket-value-column")))) {
        colCandidates->Add(oDoc, sID);
      }
      YieldToHost();
    }
  });
  return colCandidates;
}

Ref<Dictionary> GetStrategicBuckets(const IXMLDOMDocument2& oTableDoc) {
  return ReportErrors("PSFunctions.GetStrategicBuckets", Ref<Dictionary>(), [&] {
    const auto oTable = oTableDoc.selectSingleNode("table");
    const auto oSheet = oWorkbook->Worksheets()->Item(GetAttributeText(oTable, "table-worksheet"));
    const std::int32_t lTop = GetAttributeLong(oTable, "table-top-row");
    const std::int32_t lFirst = lTop + GetAttributeLong(oTable, "header-row-count");
    const std::int32_t lLast = lTop + GetAttributeLong(oTable, "table-height") - 1;
    const std::int32_t lLeft = GetAttributeLong(oTable, "table-left-column");
    auto oBuckets = runtime::MakeRef<Dictionary>();
    std::string sScratch;
    for (std::int32_t lRow = lFirst; lRow <= lLast; ++lRow) {
      const std::string sKey = runtime::UCase(GetCellText(*oSheet, lRow, lLeft, sScratch));
      runtime::Variant& vTotal = oBuckets->Item(sKey);
      vTotal = runtime::Sum(runtime::CDbl(vTotal), GetCellDouble(*oSheet, lRow, lLeft + 1));
      YieldToHost();
    }
    return oBuckets;
  });
}

}  // namespace plotsmith
