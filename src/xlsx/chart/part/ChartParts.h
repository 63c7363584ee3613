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

/// The chart parts of a workbook that are in use.
class ChartParts {
 public:
  /// `complete` completes a changed chart before it is written.
  ChartParts(BookContext& book, void (*complete)(ChartPart&)) : book_(book), complete_(complete) {}
  ~ChartParts();

  /// The workbook of the charts.
  BookContext& Book() const { return book_; }
  /// The chart of a part, which is parsed when something of the chart is asked for.
  std::shared_ptr<ChartPart> At(const std::string& part);
  /// Takes a relationship of a part out of the package, and with it the parts that nothing else refers to.
  /// Charts among them are deleted.
  void RemoveRelationship(const std::string& part, const std::string& id);
  /// The same for several relationships. A part that can't be read is the workbook's damage.
  void RemoveRelationships(const std::string& part, const std::set<std::string>& ids);

  /// Completes a changed chart before it is written.
  void Complete(ChartPart& chart) const { complete_(chart); }
  /// Whether a chart was changed since it was last written.
  bool Changed() const;
  /// Writes the charts that were changed into the package. If rows have moved, this includes the charts that
  /// point at such rows, whether or not they are in use.
  void Write();

 private:
  void UseChartsOfMovedRows();

  BookContext& book_;
  void (*complete_)(ChartPart&);
  std::map<std::string, std::shared_ptr<ChartPart>, std::less<>> charts_;  ///< by part
  std::vector<std::shared_ptr<ChartPart>> deleted_;  ///< kept for the objects that refer to them
};

}  // namespace plotsmith::xlsx
