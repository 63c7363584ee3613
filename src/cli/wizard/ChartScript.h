#pragma once

#include <string>

#include "cli/wizard/ChartOptions.h"
#include "cli/wizard/VerbScript.h"

namespace plotsmith::cli {

/// What is done to a chart on the way through the pages.
enum class ChartWork { kNew, kModify, kCopy };

/// Makes, modifies or copies a chart: what the options tell goes to the pages, all else stays as the pages
/// have it.
class ChartScript final : public VerbScript {
 public:
  /// `chart` is an id or a name, and of no interest for a new chart.
  ChartScript(ChartWork work, std::string chart, const ChartOptions& options)
      : work_(work), chart_(std::move(chart)), options_(options) {}

 protected:
  Steps StepsOn(const forms::Form& page) override;
  bool Deals(const forms::Form& page, const std::string& message) override;

 private:
  Steps OnSelectAction(const forms::Form& page) const;
  Steps OnSelectTable(const forms::Form& page);
  Steps OnLayout() const;
  Steps OnChartLocation() const;
  /// Whether the Source Table page, which the way to a chart's layout leaves out, is still to be visited.
  bool WantsSelectTable() const;
  /// Whether the Chart Location page has anything to be filled in.
  bool WantsChartLocation() const;

  ChartWork work_;
  std::string chart_;
  ChartOptions options_;
  bool beenOnSelectTable_ = false;
};

/// Deletes charts.
class DeleteScript final : public VerbScript {
 public:
  /// Ids or names.
  explicit DeleteScript(std::vector<std::string> charts) : charts_(std::move(charts)) {}

 protected:
  Steps StepsOn(const forms::Form& page) override;

 private:
  std::vector<std::string> charts_;
  bool done_ = false;
};

}  // namespace plotsmith::cli
