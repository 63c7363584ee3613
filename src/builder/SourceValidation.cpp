#include "builder/SourceValidation.h"

#include <array>

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "common/YieldToHost.h"
#include "runtime/Strings.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMElement;

namespace {

constexpr const char* kNoTable =
    "Chart '/TKN/' has become unavailable because its source table no longer exists in this workbook.";
constexpr const char* kNoData =
    "Chart '/TKN/' has become unavailable because table '/TKN/' \r\ncurrently contains no data.The chart "
    "will reappear the next time the table is refreshed with one or more rows of data.";
constexpr const char* kBadColumn =
    "Chart '/TKN/' has become unavailable because column '/TKN/'\r\nin table '/TKN/' is missing or contains "
    "invalid data.";
constexpr const char* kNoBucketTable =
    "Chart '/TKN/' has become unavailable because its strategic bucket table no longer exists in this "
    "workbook.";
constexpr const char* kBucketMismatch =
    "Chart '/TKN/' has become unavailable because its strategic bucket table doesn't match the source table.";

/// Returns the sheet column of the first of `aColumns` with the name, as a text; "" if there is none.
std::string ColumnNumber(const dom::IXMLDOMNodeList& aColumns, const std::string& sName, bool bYield) {
  for (const IXMLDOMElement& oColumn : aColumns) {
    if (runtime::EqualsIgnoreCase(GetAttributeText(oColumn, "name"), sName)) {
      return GetAttributeText(oColumn, "worksheet-column-number");
    }
    if (bYield) YieldToHost();
  }
  return {};
}

bool Fail(const char* sTemplate, std::initializer_list<runtime::Variant> aTokens) {
  ShowMessage(ReplaceTokens(sTemplate, aTokens));
  return false;
}

/// Writes the table's position into the definition.
void StoreTablePlace(IXMLDOMElement& oChartElement, const IXMLDOMElement& oTable) {
  constexpr std::array kPlaces = {"table-top-row", "table-left-column", "table-height", "header-row-count"};
  std::array<std::int32_t, kPlaces.size()> aPlaces;
  // A table with an invalid position raises its error before anything is written.
  for (std::size_t i = 0; i < kPlaces.size(); ++i) aPlaces[i] = GetAttributeLong(oTable, kPlaces[i]);
  oChartElement.setAttribute("table-worksheet", GetAttributeText(oTable, "table-worksheet"));
  for (std::size_t i = 0; i < kPlaces.size(); ++i) oChartElement.setAttribute(kPlaces[i], aPlaces[i]);
}

/// Finds the columns of the chart in its table.
bool ValidateColumns(const IXMLDOMElement& oChartElement, const IXMLDOMElement& oTable) {
  for (const char* sGroup : {"categories", "series", "values", "x-values", "bubble-sizes", "sort-order"}) {
    const auto oGroup = oChartElement.selectSingleNode(sGroup);
    if (!oGroup) continue;
    const bool bOwnHeadings =
        sGroup == std::string_view("categories") || sGroup == std::string_view("series");
    const std::string sHeadingsIn = bOwnHeadings ? GetAttributeText(oGroup, "headings-in") : "columns";
    for (IXMLDOMElement oColumn : oGroup.selectNodes("column")) {
      if (!ValidateSourceColumn(oColumn, oTable, sHeadingsIn)) {
        return Fail(kBadColumn, {GetAttributeText(oChartElement, "name"), GetAttributeText(oColumn, "name"),
                                 GetAttributeText(oTable, "name")});
      }
      YieldToHost();
    }
  }
  return true;
}

/// Finds the columns of a bucket table in the chart's table.
bool ValidateBuckets(IXMLDOMElement& oChartElement, const IXMLDOMElement& oTable) {
  const std::string sBucketTable = GetAttributeText(oChartElement, "strategic-bucket-table-id");
  const std::string sName = GetAttributeText(oChartElement, "name");
  if (sBucketTable.empty()) return true;
  if (!CollectionHasKey(sBucketTable, colTables)) return Fail(kNoBucketTable, {sName});
  const auto oBucketTable = colTables->Item(sBucketTable).selectSingleNode("table");
  for (const char* sKind : {"bucket-name-column", "bucket-value-column"}) {
    const std::int32_t lColumn = BucketColumnPosition(GetAttributeText(oBucketTable, sKind), sKind, oTable);
    if (lColumn == 0) return Fail(kBucketMismatch, {sName});
    oChartElement.setAttribute((std::string(sKind) + "-position").c_str(), lColumn);
  }
  return true;
}

}  // namespace

bool ValidateSourceData(IXMLDOMElement& oChartElement) {
  return ReportErrors("PSChartBuilder.ValidateSourceData", false, [&] {
    const std::string sTable = GetAttributeText(oChartElement, "table-id");
    const std::string sName = GetAttributeText(oChartElement, "name");
    if (!CollectionHasKey(sTable, colTables)) return Fail(kNoTable, {sName});
    const auto oTable = colTables->Item(sTable).selectSingleNode("table");
    StoreTablePlace(oChartElement, oTable);
    if (GetAttributeLong(oTable, "table-height") <= GetAttributeLong(oTable, "header-row-count")) {
      return Fail(kNoData, {sName, GetAttributeText(oTable, "name")});
    }
    return ValidateColumns(oChartElement, oTable) && ValidateBuckets(oChartElement, oTable);
  });
}

// Columns are compared by name only. The position of the headings doesn't matter, because a column of values
// may be a label column or a number column.
bool ValidateSourceColumn(IXMLDOMElement& oColumnElement, const IXMLDOMElement& oTableElement,
                          std::string_view /*sHeadingsIn*/) {
  return ReportErrors("PSChartBuilder.ValidateSourceColumn", false, [&] {
    const std::string sName = GetAttributeText(oColumnElement, "name");
    for (const char* sKind : {"label-column", "number-column"}) {
      const std::string sNumber = ColumnNumber(oTableElement.selectNodes(sKind), sName, true);
      if (sNumber.empty()) continue;
      oColumnElement.setAttribute("worksheet-column-number", runtime::CLng(sNumber));
      return true;
    }
    return false;
  });
}

std::int32_t BucketColumnPosition(const std::string& sColumnName, std::string_view sColumnKind,
                                  const IXMLDOMElement& oTableElement) {
  return ReportErrors("PSChartBuilder.BucketColumnPosition", std::int32_t{0}, [&] {
    const char* sKind = sColumnKind == "bucket-name-column"    ? "label-column"
                        : sColumnKind == "bucket-value-column" ? "number-column"
                                                               : nullptr;
    if (sKind == nullptr) return std::int32_t{0};
    const std::string sNumber = ColumnNumber(oTableElement.selectNodes(sKind), sColumnName, false);
    return sNumber.empty() ? 0 : runtime::CLng(sNumber);
  });
}

}  // namespace plotsmith
