#include "metadata/TableDefinitions.h"

#include <array>

#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "common/YieldToHost.h"
#include "runtime/Strings.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMDocument2;
using dom::IXMLDOMElement;
using runtime::Ref;

namespace {

constexpr std::array<std::string_view, 2> kTableNamePrefixes = {"VEX_TableRange", "VEX_SB"};
constexpr std::array<std::string_view, 5> kDataSheets = {"Data1", "Data2", "Data3", "Data4", "Data5"};
constexpr std::int32_t kRangeHeaderRows = 3;

/// Builds a table document. It appends and counts the columns.
class TableBuilder {
 public:
  TableBuilder() : oTable_(oDoc_.createElement("table")) {}

  void Set(const char* sAttribute, const runtime::Variant& vValue) {
    oTable_.setAttribute(sAttribute, vValue);
  }

  void AppendColumn(IXMLDOMElement& oColumn) {
    (oColumn.tagName() == "label-column" ? lLabels_ : lNumbers_) += 1;
    oTable_.appendChild(oColumn);
  }

  void SetCounts() {
    Set("label-column-count", lLabels_);
    Set("number-column-count", lNumbers_);
  }

  IXMLDOMDocument2 Finish() {
    oDoc_.appendChild(oTable_);
    return oDoc_;
  }

 private:
  IXMLDOMDocument2 oDoc_ = NewXMLDocument();
  IXMLDOMElement oTable_;
  std::int32_t lLabels_ = 0;
  std::int32_t lNumbers_ = 0;
};

/// Appends the columns of a range table, and states whether the first two are the names and values of
/// buckets.
void AppendRangeColumns(TableBuilder& oTable, const Ref<excel::Worksheet>& oSheet, std::int32_t lTop,
                        std::int32_t lLeft, std::int32_t lHeight) {
  // Only the rows come from the name. The width comes from the used range, counted from the table's left
  // edge, so that columns added beside the range belong to the table.
  const std::int32_t lWidth = oSheet->UsedRange()->Columns()->Count();
  std::string sBucketName, sBucketValue;
  for (std::int32_t lCol = lLeft; lCol < lLeft + lWidth; ++lCol) {
    auto oColumn = GetColumnDefinitionAsXML(oSheet, lTop + 2, lCol, lTop + lHeight - 1);
    if (oColumn) {
      const bool bLabel = oColumn.tagName() == "label-column";
      if (bLabel && lCol == lLeft) sBucketName = GetAttributeText(oColumn, "name");
      if (!bLabel && lCol == lLeft + 1) sBucketValue = GetAttributeText(oColumn, "name");
      oTable.AppendColumn(oColumn);
    }
    YieldToHost();
  }
  const bool bCandidate = !sBucketName.empty() && !sBucketValue.empty();
  if (!bCandidate) sBucketName = sBucketValue = "";
  oTable.SetCounts();
  oTable.Set("is-bucket-candidate", bCandidate ? "yes" : "no");
  oTable.Set("bucket-name-column", sBucketName);
  oTable.Set("bucket-value-column", sBucketValue);
}

}  // namespace

// A name that belongs to one sheet begins with the sheet's name, which may begin like the name of a table.
bool NamesTable(std::string_view sName) {
  if (sName.find('!') != std::string_view::npos) return false;
  for (const std::string_view sPrefix : kTableNamePrefixes) {
    if (runtime::EqualsIgnoreCase(sName.substr(0, sPrefix.size()), sPrefix)) return true;
  }
  return false;
}

bool IsLabelValue(const excel::CellValue& vValue) {
  using Kind = excel::CellValue::Kind;
  switch (vValue.kind) {
    case Kind::kEmpty:
    case Kind::kNumber:
    case Kind::kBoolean:
      return false;
    case Kind::kDate:
    case Kind::kError:
      return true;
    case Kind::kText:
      return !runtime::Trim(vValue.text).empty() && !runtime::IsNumeric(vValue.text);
  }
  return true;
}

void RetrieveTableDefinitions() {
  ReportErrors("PSFunctions.RetrieveTableDefinitions", [] {
    colTables = runtime::MakeRef<DocumentCollection>();
    const auto oNames = oWorkbook->Names();
    for (std::int32_t i = 1; i <= oNames->Count(); ++i) {
      const std::string sName = oNames->Item(i)->Name();
      if (NamesTable(sName)) {
        if (const auto oDoc = GetTableDefinitionAsXML(sName)) colTables->Add(oDoc, sName);
      }
      YieldToHost();
    }
    const auto oSheets = oWorkbook->Worksheets();
    for (std::int32_t i = 1; i <= oSheets->Count(); ++i) {
      const std::string sName = oSheets->Item(i)->Name();
      if (ArrayContains(sName, kDataSheets)) {
        if (const auto oDoc = GetDataNTableAsXML(sName)) colTables->Add(oDoc, sName);
      }
      YieldToHost();
    }
  });
}

IXMLDOMDocument2 GetTableDefinitionAsXML(const std::string& sTableRangeName) {
  return ReportErrors("PSFunctions.GetTableDefinitionAsXML", IXMLDOMDocument2(), [&]() -> IXMLDOMDocument2 {
    const auto oName = oWorkbook->Names()->Item(sTableRangeName);
    const std::string sSheet = SheetNameFromRefersTo(oName);
    if (sSheet.empty()) return {};
    const auto oRange = oName->RefersToRange();
    const std::int32_t lTop = oRange->Row();
    const std::int32_t lLeft = oRange->Column();
    const std::int32_t lHeight = oRange->Rows()->Count();
    std::string sTitle = runtime::CStr(oRange->Cells(1, 1)->Value());
    if (sTitle.empty()) sTitle = "[no title]";
    if (lHeight < kRangeHeaderRows) return {};

    TableBuilder oTable;
    oTable.Set("id", sTableRangeName);
    oTable.Set("name", sTitle);
    oTable.Set("table-worksheet", sSheet);
    oTable.Set("table-top-row", lTop);
    oTable.Set("table-left-column", lLeft);
    oTable.Set("table-height", lHeight);
    oTable.Set("header-row-count", kRangeHeaderRows);
    AppendRangeColumns(oTable, oWorkbook->Worksheets()->Item(sSheet), lTop, lLeft, lHeight);
    return oTable.Finish();
  });
}

IXMLDOMDocument2 GetDataNTableAsXML(const std::string& sSheetName) {
  return ReportErrors("PSFunctions.GetDataNTableAsXML", IXMLDOMDocument2(), [&]() -> IXMLDOMDocument2 {
    const auto oSheet = oWorkbook->Worksheets()->Item(sSheetName);
    const auto oUsed = oSheet->UsedRange();
    const std::int32_t lHeight = oUsed->Rows()->Count();
    if (lHeight < 2) return {};

    TableBuilder oTable;
    oTable.Set("id", sSheetName);
    oTable.Set("name", sSheetName);
    oTable.Set("table-worksheet", sSheetName);
    oTable.Set("table-top-row", 1);
    oTable.Set("table-left-column", 1);
    oTable.Set("table-height", lHeight);
    oTable.Set("header-row-count", 1);
    const std::int32_t lWidth = oUsed->Columns()->Count();
    for (std::int32_t lCol = 1; lCol <= lWidth; ++lCol) {
      auto oColumn = GetColumnDefinitionAsXML(oSheet, 1, lCol, lHeight);
      if (oColumn) oTable.AppendColumn(oColumn);
      YieldToHost();
    }
    oTable.SetCounts();
    oTable.Set("is-bucket-candidate", "no");
    return oTable.Finish();
  });
}

IXMLDOMElement GetColumnDefinitionAsXML(const Ref<excel::Worksheet>& oSheet, std::int32_t lHeaderRow,
                                        std::int32_t lColumn, std::int32_t lLastRow) {
  return ReportErrors("PSFunctions.GetColumnDefinitionAsXML", IXMLDOMElement(), [&]() -> IXMLDOMElement {
    std::string sScratch;
    const std::string sHeading(GetCellText(*oSheet, lHeaderRow, lColumn, sScratch));
    if (sHeading.empty()) return {};
    bool bNumber = true;
    excel::Worksheet& oCells = *oSheet;
    for (std::int32_t lRow = lHeaderRow + 1; bNumber && lRow <= lLastRow; ++lRow) {
      const excel::CellValue vValue = oCells.CellValueAt(lRow, lColumn);
      bNumber = !IsLabelValue(vValue);
      if (vValue.kind != excel::CellValue::Kind::kEmpty) continue;
      // Blank cells don't matter, and there may be a million of them.
      const std::int32_t lNext = oCells.NextRowAt(lRow, lColumn);
      if (lNext == 0) break;
      lRow = lNext - 1;
    }
    const auto oDoc = NewXMLDocument();
    auto oColumn = oDoc.createElement(bNumber ? "number-column" : "label-column");
    oColumn.setAttribute("name", sHeading);
    oColumn.setAttribute("worksheet-column-number", lColumn);
    return oColumn;
  });
}

std::string SheetNameFromRefersTo(const Ref<excel::DefinedName>& oName) {
  return ValueOr(std::string(), [&] {
    const std::string sText = oName->RefersTo();
    oName->RefersToRange()->Cells(1, 1);  // This fails for a name that isn't a range.
    std::string sSheet;
    bool bQuoted = false;
    for (std::size_t i = 1; i < sText.size(); ++i) {
      const char c = sText[i];
      if (c == '\'') {
        if (i + 1 < sText.size() && sText[i + 1] == '\'') {
          sSheet += c;
          ++i;
        } else if (bQuoted) {
          break;
        } else {
          bQuoted = true;
        }
      } else if (c == ':' || (c == '!' && !bQuoted)) {
        break;
      } else {
        sSheet += c;
      }
    }
    return sSheet;
  });
}

}  // namespace plotsmith
