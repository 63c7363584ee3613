#pragma once

#include <cstdint>
#include <string>

#include "common/PSConstants.h"
#include "dom/Dom.h"

/// Module PSChartBuilder: the position of a chart's block on the data sheet, and the references to it.
namespace plotsmith {

/// The sheet column of a series of the map; both count from 1.
constexpr std::int32_t ColumnOfSeries(std::int32_t lSeries) {
  return data_column::kFirstSeries + lSeries - 1;
}
/// The series of the map in a sheet column; both count from 1.
constexpr std::int32_t SeriesOfColumn(std::int32_t lColumn) {
  return lColumn - data_column::kFirstSeries + 1;
}

/// A reference to one cell of the data sheet: "=VEX_ChartData!R6C2".
std::string DataCell(std::int32_t lRow, std::int32_t lColumn);
/// A reference to several cells: "=VEX_ChartData!R6C2:R17C2".
std::string DataCells(std::int32_t lRow1, std::int32_t lColumn1, std::int32_t lRow2, std::int32_t lColumn2);
/// A reference to one cell in the style that newer hosts require for names: "=VEX_ChartData!$B$6".
std::string DataCellA1(std::int32_t lRow, const std::string& sColumnLetters);

/// The rows and columns of a block, by sheet rows and sheet columns from 1.
struct Block {
  std::int32_t lHeaderRow;   ///< The row of the series names.
  std::int32_t lLastRow;     ///< The row of the last category.
  std::int32_t lLastColumn;  ///< The column of the last series.

  /// Reads `data-start-row` of the definition and the counts of the map.
  explicit Block(const dom::IXMLDOMElement& oChartElement);

  std::int32_t FirstRow() const { return lHeaderRow + 1; }  ///< The row of the first category.
  /// Returns the reference to the names of the categories.
  std::string Categories() const;
  /// Returns the reference to the values of a column, from 1.
  std::string Values(std::int32_t lColumn) const;
};

}  // namespace plotsmith
