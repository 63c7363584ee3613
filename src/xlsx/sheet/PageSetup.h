#pragma once

#include <cstdint>
#include <vector>

#include "xlsx/package/Archive.h"

namespace plotsmith::xlsx {

/// The page setup of a sheet. Lengths are in points.
struct PageSetup {
  /// The size of the page in its orientation. By default it is Letter in portrait.
  double paperWidth = 612, paperHeight = 792;
  /// The margins. By default they are 0.7 and 0.75 inches.
  double left = 50.4, right = 50.4, top = 54, bottom = 54;
  double scale = 1;   ///< The scale of the contents; ignored if `fits`.
  bool fits = false;  ///< Whether the scale is chosen so that `fitWidth` by `fitHeight` pages suffice.
  /// The numbers of pages across and down if `fits`. 0 means any number.
  int fitWidth = 1, fitHeight = 1;
  bool overThenDown = false;  ///< Whether pages to the right precede pages below.
  /// Whether the contents are centred horizontally and vertically on the page.
  bool centersAcross = false, centersDown = false;
  /// Whether gridlines and the headings of rows and columns are printed.
  bool gridLines = false, headings = false;
  /// The rows and columns before manual page breaks, in ascending order, from 1.
  std::vector<std::int32_t> rowBreaks, columnBreaks;
  bool hasHeaderOrFooter = false;      ///< Whether there is a header or a footer, which isn't drawn.
  bool hasConditionalFormats = false;  ///< Whether conditional formats change the look of cells.

  bool operator==(const PageSetup&) const = default;
};

/// Reads the page setup of a worksheet or a chart sheet, and so the whole part. Throws PackageError.
PageSetup ReadPageSetup(Archive::Stream& part);

}  // namespace plotsmith::xlsx
