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

/// Module PSChartBuilder: the sheet that all charts draw from. A chart has one block of rows on it: a header
/// row of series names, then a row for each category. Column 1 holds the chart's id in each row, column 2 the
/// category, the series follow from column 3. Blocks stand one behind the other from row 1, and a block is
/// found by its ids and never by the row that the definition remembers.
namespace plotsmith {

/// The values of a block: category by series, both from 1, Empty where no row of the table reaches.
class Rectangle {
 public:
  /// Error 7 for more values than a data sheet has room for, before the memory is taken.
  Rectangle(std::int32_t lCategories, std::int32_t lSeries)
      : lCategories_(lCategories), lSeries_(lSeries), aValues_(SizeOf(lCategories, lSeries)) {}

  /// Error 9 outside.
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

/// Brings the chart's block up to date, in place if there is one; False after an error, which was shown.
bool PopulateDataSheetOffi2007(dom::IXMLDOMElement& oChartElement);
/// Runs the map over the source table; nothing after an error.
std::optional<Rectangle> GetSourceData(const dom::IXMLDOMElement& oChartElement);
bool MoveToDataSheet(std::int32_t lStartRow, dom::IXMLDOMElement& oChartElement, const std::string& sID,
                     Rectangle& aData, const runtime::Ref<excel::Worksheet>& oSheet);
bool CreateDataSheet();

}  // namespace plotsmith
