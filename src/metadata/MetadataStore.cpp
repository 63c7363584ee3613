#include "metadata/MetadataStore.h"

#include <algorithm>
#include <array>
#include <vector>

#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "common/Worksheets.h"
#include "common/YieldToHost.h"
#include "metadata/LostMarkers.h"
#include "metadata/SavingPrograms.h"
#include "metadata/StrategicBuckets.h"
#include "readback/ChartReadBack.h"
#include "runtime/Collection.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMDocument2;
using dom::IXMLDOMElement;
using runtime::Ref;

namespace {

constexpr const char* kSchemaVersion = "2";

/// A row of the sheet, as it was last read.
struct ReadRow {
  std::string sText;
  bool bParses = false;
  std::string sID;
};

/// A cache of the parsed rows. Each save reads the rows above its own row. The cache keeps their contents
/// beside their texts from the load or the save, so a row is parsed again only if its text has changed.
std::vector<ReadRow> aReadRows;

/// The cache is up to date for the rows above lFirstUncomparedRow, as long as the sheet's ContentsVersion is
/// lComparedVersion.
std::int32_t lFirstUncomparedRow = kFirstDefinitionRow;
std::uint64_t lComparedVersion = 0;

ReadRow& ReadRowAt(std::int32_t lRow) {
  const auto lIndex = static_cast<std::size_t>(lRow - kFirstDefinitionRow);
  if (lIndex >= aReadRows.size()) aReadRows.resize(lIndex + 1);
  return aReadRows[lIndex];
}

/// Returns the text of a row, without a copy if the cell contains a text; empty for a cell that can't be
/// read.
std::string_view DefinitionAt(excel::Worksheet& oSheet, std::int32_t lRow, std::string& sScratch) {
  return ValueOr(std::string_view(), [&]() -> std::string_view {
    const excel::CellValue vValue = oSheet.CellValueAt(lRow, 1);
    if (vValue.kind == excel::CellValue::Kind::kText) return vValue.text;
    return sScratch = runtime::CStr(vValue.ToVariant());
  });
}

bool RowHoldsChart(std::int32_t lRow, std::string_view sText, const std::string& sID) {
  ReadRow& oRow = ReadRowAt(lRow);
  if (lRow >= lFirstUncomparedRow && oRow.sText != sText) {
    ReadRow oRead{std::string(sText)};
    auto oDoc = NewXMLDocument();
    oRead.bParses = oDoc.loadXML(sText);
    if (const auto oChart = oDoc.selectSingleNode("chart")) oRead.sID = GetAttributeText(oChart, "id");
    oRow = std::move(oRead);
  }
  return oRow.bParses && oRow.sID == sID;
}

/// Returns the row with the definition of the chart, or the first blank row.
std::int32_t FindDefinitionRow(excel::Worksheet& oSheet, const std::string& sID) {
  const std::uint64_t lVersion = oSheet.ContentsVersion();
  if (lVersion == 0 || lVersion != lComparedVersion) lFirstUncomparedRow = kFirstDefinitionRow;
  std::string sScratch;
  for (std::int32_t lRow = kFirstDefinitionRow;; ++lRow) {
    const std::string_view sText = DefinitionAt(oSheet, lRow, sScratch);
    if (sText.empty() || RowHoldsChart(lRow, sText, sID)) return lRow;
  }
}

/// Returns true if a program has dropped the box of a chart with a comment, so that no person has deleted the
/// comment.
bool CommentBoxWasDropped(const IXMLDOMElement& oChart) {
  return !GetChildText(oChart, "comment").empty() && LossesOfLastSave().bTextBoxes;
}

/// Loads a row. Returns false if the row must be removed from the sheet. If `oUnmarked` is null, charts
/// without an alternative text are not searched.
bool LoadChartDefinition(std::int32_t lRow, const std::string& sText, UnmarkedCharts* oUnmarked) {
  auto oDoc = NewXMLDocument();
  if (!oDoc.loadXML(sText)) return false;
  auto oChart = oDoc.selectSingleNode("chart");
  const std::string sID = GetAttributeText(oChart, "id");
  std::string sSheet = FindChartSheet(sID);
  if (sSheet.empty() && !sID.empty() && oUnmarked != nullptr) {
    sSheet = oUnmarked->RestoreMarker(sID);
    if (!sSheet.empty()) {
      RestoreCommentMarker(sID, sSheet, GetChildText(oChart, "comment"));
    }
  }
  const std::string sTableSheet = GetTableSheetName(GetAttributeText(oChart, "table-id"));
  if (sSheet.empty()) return false;
  oChart.setAttribute("chart-worksheet", sSheet);
  oChart.setAttribute("table-worksheet", sTableSheet);
  const auto oChartObject = FindChartObject(sID, sSheet);
  const auto oComment = FindChartComment(sID, sSheet);
  RevEngineerChart(oChartObject, oDoc);
  if (oComment || !CommentBoxWasDropped(oChart)) RevEngineerComment(oComment, oDoc);
  colChartObjects->Add(oChartObject, sID);
  colCharts->Add(oDoc, sID);
  if (oComment) colChartShapes->Add(oComment, sID);
  ReadRowAt(lRow) = {sText, true, sID};
  return true;
}

bool TableFitsChart(const IXMLDOMElement& oChart) {
  const std::string sTable = GetAttributeText(oChart, "table-id");
  if (!CollectionHasKey(sTable, colTables)) return false;
  const auto oTable = colTables->Item(sTable).selectSingleNode("table");
  if (GetAttributeLong(oTable, "header-row-count") >= GetAttributeLong(oTable, "table-height") ||
      GetAttributeLong(oTable, "label-column-count") < 1 ||
      GetAttributeLong(oTable, "number-column-count") < 1) {
    return false;
  }
  return GetAttributeText(oChart, "type") != "strategic bucket" ||
         CollectionHasKey(GetAttributeText(oChart, "strategic-bucket-table-id"), GetBucketCandidates(oTable));
}

constexpr std::int32_t Rgb(std::int32_t lRed, std::int32_t lGreen, std::int32_t lBlue) {
  const auto clamp = [](std::int32_t l) { return std::min(l, 255); };
  return clamp(lRed) + 256 * clamp(lGreen) + 65536 * clamp(lBlue);
}

}  // namespace

void RetrieveChartDefinitions() {
  ReportErrors("PSFunctions.RetrieveChartDefinitions", [] {
    aReadRows.clear();
    lFirstUncomparedRow = kFirstDefinitionRow;
    // A run loads the definitions again only after a deletion. A deleted chart must not be found again in its
    // copy.
    const bool bReload = static_cast<bool>(colChartObjects);
    colCharts = runtime::MakeRef<DocumentCollection>();
    colChartObjects = runtime::MakeRef<runtime::Collection<Ref<excel::Chart>>>();
    colChartShapes = runtime::MakeRef<runtime::Collection<Ref<excel::Shape>>>();
    const bool bNewSheet = !SheetExists(kDefinitionsSheet);
    if (bNewSheet) {
      if (!CreateSheet(kDefinitionsSheet, 1, excel::xlSheetVeryHidden)) {
        ShowMessage("Unable to create the metadata worksheet");
        return;
      }
      oWorkbook->Worksheets()->Item(kDefinitionsSheet)->SetCellValueAt(1, 1, kDefinitionsSheetMark);
    } else {
      const auto oSheet = oWorkbook->Worksheets()->Item(kDefinitionsSheet);
      UnmarkedCharts oUnmarked;
      for (std::int32_t lRow = kFirstDefinitionRow;;) {
        const std::string sText = runtime::CStr(GetCellValue(*oSheet, lRow, 1, cell::kString));
        if (sText.empty()) break;
        // An error in a row concerns only that row.
        const bool bLoaded =
            ValueOr(false, [&] { return LoadChartDefinition(lRow, sText, bReload ? nullptr : &oUnmarked); });
        if (bLoaded || !DeleteSheetRow(oSheet, lRow)) ++lRow;
      }
    }
    ValidateChartsAgainstTables();
    if (bNewSheet) EnsureWorkbookPalette();
  });
}

void ValidateChartsAgainstTables() {
  ReportErrors("PSFunctions.ValidateChartsAgainstTables", [] {
    for (const IXMLDOMDocument2& oDoc : *colCharts) {
      auto oChart = oDoc.selectSingleNode("chart");
      oChart.setAttribute("table-corrupted", TableFitsChart(oChart) ? "no" : "yes");
      YieldToHost();
    }
  });
}

void SaveChartDefinition(const IXMLDOMDocument2& oDoc) {
  ReportErrors("PSFunctions.SaveChartDefinition", [&] {
    auto oChart = oDoc.selectSingleNode("chart");
    const std::string sID = GetAttributeText(oChart, "id");
    if (GetAttributeText(oChart, "ps-chart-schema-version") != kSchemaVersion) {
      oChart.setAttribute("ps-chart-schema-version", kSchemaVersion);
    }
    const auto oSheet = oWorkbook->Worksheets()->Item(kDefinitionsSheet);
    const std::int32_t lRow = FindDefinitionRow(*oSheet, sID);
    const std::string sSaved = oDoc.xml();
    oSheet->SetCellValueAt(lRow, 1, sSaved);
    ReadRowAt(lRow) = {sSaved, true, sID};
    lFirstUncomparedRow = std::max(lFirstUncomparedRow, lRow + 1);
    lComparedVersion = oSheet->ContentsVersion();
  });
}

Ref<excel::Shape> FindShape(const Ref<excel::Worksheet>& oSheet, std::int32_t lType, const std::string& sID) {
  if (sID.empty()) return nullptr;
  const auto oShapes = oSheet->Shapes();
  const std::int32_t lCount = oShapes->Count();
  for (std::int32_t i = 1; i <= lCount; ++i) {
    auto oShape = oShapes->Item(i);
    if (oShape->Type() == lType && oShape->AlternativeText() == sID) return oShape;
    YieldToHost();
  }
  return nullptr;
}

std::string FindChartSheet(const std::string& sID) {
  const auto oSheets = oWorkbook->Worksheets();
  for (std::int32_t i = 1; i <= oSheets->Count(); ++i) {
    const auto oSheet = oSheets->Item(i);
    if (FindShape(oSheet, excel::msoChart, sID)) return oSheet->Name();
    YieldToHost();
  }
  return {};
}

Ref<excel::Chart> FindChartObject(const std::string& sID, const std::string& sSheetName) {
  const auto oSheet = oWorkbook->Worksheets()->Item(sSheetName);
  const auto oShape = FindShape(oSheet, excel::msoChart, sID);
  return oShape ? oSheet->ChartObjects()->Item(oShape->Name())->Chart() : nullptr;
}

Ref<excel::Shape> FindChartComment(const std::string& sID, const std::string& sSheetName) {
  return FindShape(oWorkbook->Worksheets()->Item(sSheetName), excel::msoTextBox, sID);
}

std::string GetTableSheetName(const std::string& sID) {
  if (!CollectionHasKey(sID, colTables)) return kDeletedTable;
  return GetAttributeText(colTables->Item(sID).selectSingleNode("table"), "table-worksheet");
}

void EnsureWorkbookPalette() {
  constexpr std::int32_t kFirst = 17;
  // The third number of the first colour exceeds the range of a colour. The clamped value is used.
  constexpr std::array<std::int32_t, 6> kDefaults = {Rgb(153, 153, 256), Rgb(153, 51, 102),
                                                     Rgb(255, 255, 204), Rgb(204, 255, 255),
                                                     Rgb(102, 0, 102),   Rgb(255, 128, 128)};
  constexpr std::array<std::int32_t, 6> kColors = {Rgb(102, 102, 153), Rgb(255, 255, 153), Rgb(51, 153, 102),
                                                   Rgb(255, 128, 128), Rgb(51, 204, 204),  Rgb(128, 0, 128)};
  IgnoreErrors([&] {
    const auto oSheets = oWorkbook->Worksheets();
    for (std::int32_t i = 1; i <= oSheets->Count(); ++i) {
      const auto oShapes = oSheets->Item(i)->Shapes();
      for (std::int32_t j = 1; j <= oShapes->Count(); ++j) {
        if (oShapes->Item(j)->Type() == excel::msoChart) return;
      }
    }
    for (std::size_t i = 0; i < kDefaults.size(); ++i) {
      if (oWorkbook->Colors(kFirst + static_cast<std::int32_t>(i)) != kDefaults[i]) return;
    }
    for (std::size_t i = 0; i < kColors.size(); ++i) {
      oWorkbook->SetColors(kFirst + static_cast<std::int32_t>(i), kColors[i]);
    }
  });
}

}  // namespace plotsmith
