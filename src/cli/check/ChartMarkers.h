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

/// Finds the charts of a workbook by their alternative texts, as the definitions do. Sheets are read one
/// after the other, until the chart is found.
class ChartMarkers {
 public:
  /// Makes a finder for a workbook, which must outlive it.
  explicit ChartMarkers(xlsx::Workbook& book) : book_(book) {}

  /// Returns the first shape with the id in sheet order, or null if there is none.
  std::shared_ptr<xlsx::SheetShape> ShapeOf(const std::string& id);
  /// Returns the sheet of the chart with the id, or "". A chart that has lost its alternative text is
  /// identified by its data.
  std::string SheetOf(const std::string& id);
  /// Returns true if an earlier chart on the sheet has the same name as the chart with the id. Charts are
  /// drawn by name, so the earlier one would be drawn.
  bool IsHiddenByName(const std::string& id);
  /// Returns true if the chart with the id is in a group of shapes.
  bool IsGrouped(const std::string& id);
  /// Returns the sheets of the charts by alternative text, in sheet order.
  std::map<std::string, std::vector<std::string>> SheetsByText();
  /// Returns a sentence that explains why no chart has the id, and that lists the charts.
  std::string Absence(const std::string& id);

 private:
  struct MarkedChart {
    std::string sheet;
    std::shared_ptr<xlsx::SheetShape> shape;
    bool isHiddenByName;
    std::vector<std::string> others = {};  ///< The sheets of further charts with the same text.
  };

  const MarkedChart* Find(const std::string& id);
  void ReadAll();
  /// Reads the charts of the next sheet. Returns false if there is none.
  bool ReadNextSheet();

  xlsx::Workbook& book_;
  std::size_t sheetsRead_ = 0;
  std::map<std::string, MarkedChart> charts_;   ///< The first chart for each alternative text.
  std::map<std::string, std::string> grouped_;  ///< The sheets of grouped charts by alternative text.
  std::size_t unmarked_ = 0;                    ///< The number of charts without an alternative text.
  UnmarkedCharts lost_;
};

}  // namespace plotsmith::cli
