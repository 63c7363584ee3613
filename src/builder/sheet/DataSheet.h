#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "dom/Dom.h"
#include "host/excel/Worksheet.h"
#include "runtime/Ref.h"
#include "runtime/RuntimeError.h"
#include "runtime/Variant.h"

/// Module PSChartBuilder: the data sheet, which contains the data of all charts. Each chart has a block of
/// rows: a header row with the names of the series, and a row for each category. Column 1 contains the
/// chart's id in each row, column 2 the category, and the series begin at column 3. The blocks follow each
/// other from row 1. A block is found by its ids, and never by the row that the definition stores.
namespace plotsmith {

/// The values of a block by category and series, both from 1. A value that no row of the table has set is
/// Empty.
class Rectangle {
 public:
  /// Makes a rectangle of Empty values. Raises error 7 if the data sheet can't contain so many values.
  Rectangle(std::int32_t lCategories, std::int32_t lSeries)
      : lCategories_(lCategories), lSeries_(lSeries), aValues_(SizeOf(lCategories, lSeries)) {}

  /// Returns the value of a category and a series. Raises error 9 outside the rectangle.
  runtime::Variant& At(std::int32_t lCategory, std::int32_t lSeries) {
    if (lCategory < 1 || lCategory > lCategories_ || lSeries < 1 || lSeries > lSeries_) {
      throw runtime::RuntimeError(runtime::error::kSubscript);
    }
    return aValues_[static_cast<std::size_t>(lCategory - 1) * static_cast<std::size_t>(lSeries_) +
                    static_cast<std::size_t>(lSeries - 1)];
  }

 private:
  static std::size_t SizeOf(std::int32_t lCategories, std::int32_t lSeries) {
    constexpr std::size_t kMostValues = 20'000'000;
    const auto lSize = static_cast<std::size_t>(lCategories) * static_cast<std::size_t>(lSeries);
    if (lSize > kMostValues) throw runtime::RuntimeError(runtime::error::kOutOfMemory);
    return lSize;
  }

  std::int32_t lCategories_;
  std::int32_t lSeries_;
  std::vector<runtime::Variant> aValues_;
};

/// Writes the chart's block, at the position of the old one if there is one. Shows an error and returns False
/// if that fails.
bool PopulateDataSheetOffi2007(dom::IXMLDOMElement& oChartElement);
/// Applies the map to the source table. Returns nothing after an error.
std::optional<Rectangle> GetSourceData(const dom::IXMLDOMElement& oChartElement);
/// Writes the header row and the values of a block, beginning at a row. Returns False after an error.
bool MoveToDataSheet(std::int32_t lStartRow, dom::IXMLDOMElement& oChartElement, const std::string& sID,
                     Rectangle& aData, const runtime::Ref<excel::Worksheet>& oSheet);
/// Adds the data sheet if the workbook has none. Shows a message and returns False if the host refuses.
bool CreateDataSheet();

}  // namespace plotsmith
