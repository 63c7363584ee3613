#pragma once

#include <cstddef>
#include <vector>

#include "xlsx/sheet/PageSetup.h"
#include "xlsx/sheet/Reference.h"
#include "xlsx/sheet/SheetGeometry.h"

namespace plotsmith::render {

/// The pages of a printed sheet.
struct PageCuts {
  double scale = 1;                    ///< The size on the paper divided by the size on the sheet.
  std::vector<xlsx::CellRange> pages;  ///< The cells of each page, in the order of printing.
  std::size_t count = 0;               ///< The number of all pages, including pages that aren't in `pages`.
};

/// Divides ranges of cells into pages. A page has as many whole rows and columns as fit between the margins,
/// but at least one of each. Each range begins on a new page. The result lists at most `most` pages.
PageCuts CutPages(const xlsx::PageSetup& setup, const xlsx::SheetGeometry& geometry,
                  const std::vector<xlsx::CellRange>& ranges, std::size_t most);

}  // namespace plotsmith::render
