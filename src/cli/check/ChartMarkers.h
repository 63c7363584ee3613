#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "metadata/LostMarkers.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// The charts of a workbook by their alternative texts, as the definitions look for them. Sheets are read one
/// after the other, until the chart that is asked for is found.
class ChartMarkers {
 public:
  explicit ChartMarkers(xlsx::Workbook& book) : book_(book) {}

  /// The shape that bears the id, the first one in the order of the sheets; null if there is none.
  std::shared_ptr<xlsx::SheetShape> ShapeOf(const std::string& id);
  /// The sheet of the chart that belongs to an id, also of one that has lost its alternative text and is
  /// known by its data; "" if there is none.
  std::string SheetOf(const std::string& id);
  /// Whether the chart of the id is in a group of shapes.
  bool IsGrouped(const std::string& id);
  /// The charts by their alternative texts: the sheets of those that have the same, in the order of the
  /// sheets.
  std::map<std::string, std::vector<std::string>> SheetsByText();
  /// Why no chart belongs to the id, and which charts there are, as a sentence.
  std::string Absence(const std::string& id);

 private:
  struct MarkedChart {
    std::string sheet;
    std::shared_ptr<xlsx::SheetShape> shape;
    std::vector<std::string> others = {};  ///< the sheets of further charts with the same text
  };

  const MarkedChart* Find(const std::string& id);
  void ReadAll();
  /// Reads the charts of the next sheet; false behind the last one.
  bool ReadNextSheet();

  xlsx::Workbook& book_;
  std::size_t sheetsRead_ = 0;
  std::map<std::string, MarkedChart> charts_;   ///< by alternative text, the first one each
  std::map<std::string, std::string> grouped_;  ///< sheets of charts within a group, by alternative text
  std::size_t unmarked_ = 0;                    ///< charts without an alternative text
  UnmarkedCharts lost_;
};

}  // namespace plotsmith::cli
