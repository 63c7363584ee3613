#pragma once

#include <string>

#include "cli/wizard/ChartOptions.h"
#include "cli/wizard/VerbScript.h"

namespace plotsmith::cli {

/// The action on a chart.
enum class ChartWork { kNew, kModify, kCopy };

/// The script of the verbs that make, modify or copy a chart. It enters the options on the pages; all other
/// controls keep their values.
class ChartScript final : public VerbScript {
 public:
  /// Makes a script. `chart` is an id or a name; it isn't used for a new chart.
  ChartScript(ChartWork work, std::string chart, const ChartOptions& options)
      : work_(work), chart_(std::move(chart)), options_(options) {}

 protected:
  Steps StepsOn(const forms::Form& page) override;
  bool Resolves(const forms::Form& page, const std::string& message) override;

 private:
  Steps OnSelectAction(const forms::Form& page) const;
  Steps OnSelectTable(const forms::Form& page);
  Steps OnLayout() const;
  Steps OnChartLocation() const;
  /// Returns true if the script still has to visit the Source Table page, which isn't on the way to the
  /// layout of an existing chart.
  bool WantsSelectTable() const;
  /// Returns true if the script has input for the Chart Location page.
  bool WantsChartLocation() const;

  ChartWork work_;
  std::string chart_;
  ChartOptions options_;
  bool hasVisitedSelectTable_ = false;
};

/// The script of the verb that deletes charts.
class DeleteScript final : public VerbScript {
 public:
  /// Makes a script that deletes the charts with these ids or names.
  explicit DeleteScript(std::vector<std::string> charts) : charts_(std::move(charts)) {}

 protected:
  Steps StepsOn(const forms::Form& page) override;

 private:
  std::vector<std::string> charts_;
  bool done_ = false;
};

}  // namespace plotsmith::cli
