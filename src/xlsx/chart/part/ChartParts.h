#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "xlsx/book/BookContext.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The chart parts of a workbook that have been used.
class ChartParts {
 public:
  /// `complete` completes a changed chart before it is written.
  ChartParts(BookContext& book, void (*complete)(ChartPart&)) : book_(book), complete_(complete) {}
  ~ChartParts();

  /// The workbook of the charts.
  BookContext& Book() const { return book_; }
  /// The chart of a part, which is parsed at its first use.
  std::shared_ptr<ChartPart> At(const std::string& part);
  /// Removes a relationship of a part from the package, and the parts that no other part refers to. Charts
  /// among them are deleted.
  void RemoveRelationship(const std::string& part, const std::string& id);
  /// Removes several relationships. An unreadable part counts as damage of the workbook.
  void RemoveRelationships(const std::string& part, const std::set<std::string>& ids);

  /// Completes a changed chart before it is written.
  void Complete(ChartPart& chart) const { complete_(chart); }
  /// Returns true if a chart was changed since it was last written.
  bool Changed() const;
  /// Writes the changed charts into the package. If rows have moved, this includes all charts that refer to
  /// such rows, even if they haven't been used.
  void Write();

 private:
  void UseChartsOfMovedRows();

  BookContext& book_;
  void (*complete_)(ChartPart&);
  std::map<std::string, std::shared_ptr<ChartPart>, std::less<>> charts_;  ///< by part
  std::vector<std::shared_ptr<ChartPart>> deleted_;  ///< kept for the objects that refer to them
};

}  // namespace plotsmith::xlsx
