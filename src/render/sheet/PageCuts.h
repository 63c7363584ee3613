#pragma once

#include <cstddef>
#include <vector>

#include "xlsx/sheet/PageSetup.h"
#include "xlsx/sheet/Reference.h"
#include "xlsx/sheet/SheetGeometry.h"

namespace plotsmith::render {

/// The pages of a printed sheet.
struct PageCuts {
  double scale = 1;                    ///< points on the paper for a point of the sheet
  std::vector<xlsx::CellRange> pages;  ///< the cells of each, in the order of printing
  std::size_t count = 0;               ///< of all pages, those beyond `pages` included
};

/// Cuts ranges of cells into pages: as many whole rows and columns as fit between the margins, at least one
/// of each. Each range begins a page. `most` pages are listed.
PageCuts CutPages(const xlsx::PageSetup& setup, const xlsx::SheetGeometry& geometry,
                  const std::vector<xlsx::CellRange>& ranges, std::size_t most);

}  // namespace plotsmith::render
