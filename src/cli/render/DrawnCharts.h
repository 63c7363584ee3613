#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/Streams.h"
#include "cli/render/ChartsToDraw.h"
#include "cli/render/PictureOptions.h"

namespace plotsmith::xlsx {
class Workbook;
}

namespace plotsmith::cli {

/// What came of drawing charts.
struct DrawnCounts {
  std::size_t drawn = 0;
  bool said = false;  ///< something isn't drawn, which was said on `err`
};

/// Draws charts of the workbook at `book` and writes their pictures. What isn't drawn is said on `err`, a
/// line each. `list` has the files printed on `out`.
DrawnCounts WriteCharts(xlsx::Workbook& workbook, const std::string& book,
                        const std::vector<ChartToDraw>& charts, const PicturePlan& plan,
                        const Streams& streams, bool list);

}  // namespace plotsmith::cli
