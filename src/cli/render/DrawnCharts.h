#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "cli/Streams.h"
#include "cli/render/ChartsToDraw.h"
#include "cli/render/PictureWriter.h"

namespace plotsmith::xlsx {
class Workbook;
}

namespace plotsmith::cli {

/// The results of drawing charts.
struct DrawnCounts {
  std::size_t drawn = 0;     ///< The number of pictures that were written.
  bool hasMessages = false;  ///< Whether `err` reports that something isn't drawn.
};

/// Draws charts of the workbook at `book` and writes their pictures. Reports what isn't drawn on `err`, one
/// line each. The threads of the writer read the charts, so the writer ends here.
DrawnCounts WriteCharts(xlsx::Workbook& workbook, const std::string& book,
                        const std::vector<ChartToDraw>& charts, std::unique_ptr<PictureWriter> writer,
                        const Streams& streams);

}  // namespace plotsmith::cli
