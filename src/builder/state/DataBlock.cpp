#include "builder/state/DataBlock.h"

#include "builder/state/BuilderVariables.h"
#include "common/Documents.h"

namespace plotsmith {
namespace {

std::string OnDataSheet(const std::string& sCells) { return std::string("=") + kDataSheet + "!" + sCells; }

std::string R1C1(std::int32_t lRow, std::int32_t lColumn) {
  return "R" + std::to_string(lRow) + "C" + std::to_string(lColumn);
}

}  // namespace

std::string DataCell(std::int32_t lRow, std::int32_t lColumn) { return OnDataSheet(R1C1(lRow, lColumn)); }

std::string DataCells(std::int32_t lRow1, std::int32_t lColumn1, std::int32_t lRow2, std::int32_t lColumn2) {
  return OnDataSheet(R1C1(lRow1, lColumn1) + ":" + R1C1(lRow2, lColumn2));
}

std::string DataCellA1(std::int32_t lRow, const std::string& sColumnLetters) {
  return OnDataSheet("$" + sColumnLetters + "$" + std::to_string(lRow));
}

Block::Block(const dom::IXMLDOMElement& oChartElement)
    : lHeaderRow(GetAttributeLong(oChartElement, "data-start-row")),
      lLastRow(lHeaderRow + mCategoryCount),
      lLastColumn(ColumnOfSeries(mSeriesCount)) {}

std::string Block::Categories() const { return Values(data_column::kName); }

std::string Block::Values(std::int32_t lColumn) const {
  return DataCells(FirstRow(), lColumn, lLastRow, lColumn);
}

}  // namespace plotsmith
