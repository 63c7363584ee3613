#pragma once

#include <cstdint>
#include <string>

#include "dom/Dom.h"

/// Module PSChartBuilder: the steps that the drawing of several chart families shares.
namespace plotsmith {

/// Where a chart's block lies on the data sheet: rows are sheet rows, columns sheet columns, from 1.
struct Block {
  std::int32_t S;  ///< the header row
  std::int32_t E;  ///< the last row
  std::int32_t L;  ///< the last column

  /// From `data-start-row` and the map's counts.
  explicit Block(const dom::IXMLDOMElement& oChartElement);

  /// The category texts, as a series takes them: "=VEX_ChartData!R6C2:R17C2".
  std::string Categories() const;
  /// The values of one column.
  std::string Values(std::int32_t lColumn) const;
};

inline constexpr const char* kDataReferencePrefix = "=VEX_ChartData!R";

void ApplyTitle(const dom::IXMLDOMElement& oChartElement);
/// A legend where the series have headings; nothing changes without a `series` element.
void ApplyLegendFromHeadings(const dom::IXMLDOMElement& oChartElement);
void ClearAxisTitles();
/// The titles of the definition, with the persisted fonts, and the axes that bear them.
void ApplyAxisTitles(const dom::IXMLDOMElement& oChartElement);
/// Links the tick labels of the value axis to the number format of the data, and turns the axis titles.
void FinishAxes();
/// The built-in legend by `mLegendVisibility`: anything but "show" and "hide" leaves it.
void ApplyLegendVisibility();
/// Dresses the built-in legend, which must be there. What the host refuses is passed over.
void ApplyLegendAttributes();

}  // namespace plotsmith
