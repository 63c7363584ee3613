#pragma once

#include <map>
#include <string>

#include "metadata/LostMarkers.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// The charts of a workbook by their alternative texts, as the definitions look for them.
class ChartMarkers {
 public:
  explicit ChartMarkers(xlsx::Workbook& book);

  /// The sheet of the chart that belongs to an id, also of one that has lost its alternative text and is
  /// known by its data; "" if there is none.
  std::string SheetOf(const std::string& id);
  /// Why no chart belongs to the id, and which charts there are, as the end of a sentence.
  std::string Absence(const std::string& id) const;

 private:
  std::map<std::string, std::string> sheets_;   ///< by alternative text, the first one each
  std::map<std::string, std::string> grouped_;  ///< the same of charts within a group of shapes
  std::size_t unmarked_ = 0;                    ///< charts without an alternative text
  UnmarkedCharts lost_;
};

}  // namespace plotsmith::cli
