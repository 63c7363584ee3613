#pragma once

#include <cstdint>
#include <vector>

#include "xlsx/package/Archive.h"

namespace plotsmith::xlsx {

/// How a sheet is printed. Lengths are points.
struct PageSetup {
  double paperWidth = 612, paperHeight = 792;               ///< as the page is read; Letter without a setup
  double left = 50.4, right = 50.4, top = 54, bottom = 54;  ///< margins: 0.7 and 0.75 inches
  double scale = 1;   ///< of everything on the page; not looked at when `fits`
  bool fits = false;  ///< the scale is such that the sheet takes no more pages than `fitWidth` by `fitHeight`
  int fitWidth = 1, fitHeight = 1;  ///< 0 is any number of pages
  bool overThenDown = false;        ///< pages to the right come before those below
  bool centersAcross = false, centersDown = false;
  bool gridLines = false, headings = false;
  /// Rows and columns that a page ends with because somebody wants it, in ascending order, from 1.
  std::vector<std::int32_t> rowBreaks, columnBreaks;
  bool hasHeaderOrFooter = false;
  bool hasConditionalFormats = false;  ///< which change the look of cells

  bool operator==(const PageSetup&) const = default;
};

/// The page setup of a worksheet's or a chart sheet's part. The whole part is read. Throws PackageError.
PageSetup ReadPageSetup(Archive::Stream& part);

}  // namespace plotsmith::xlsx
