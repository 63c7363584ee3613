#include "cli/wizard/ChartScript.h"

#include <utility>

#include "cli/ChartLookup.h"
#include "cli/check/Words.h"
#include "cli/wizard/LayoutControls.h"
#include "cli/wizard/LayoutSteps.h"
#include "common/Documents.h"
#include "common/RunVariables.h"
#include "forms/Buttons.h"
#include "forms/script/ScriptError.h"

namespace plotsmith::cli {
namespace {

using forms::ScriptError;

/// The form names of the pages.
namespace page_name {
constexpr std::string_view kSelectAction = "frmPSSelectAction";
constexpr std::string_view kSelectTable = "frmPSSelectTable";
constexpr std::string_view kChartLocation = "frmPSChartLocation";
}  // namespace page_name

/// The message of the Source Table page if the chart's type can't be drawn.
constexpr std::string_view kNoType = "Please select a chart type";

/// Returns the type of the current chart, or nothing if it can't be drawn.
std::optional<std::string> TypeInHand() {
  if (!oChartDoc) return std::nullopt;
  const std::string type = GetAttributeText(oChartDoc.selectSingleNode("chart"), "type");
  return FindLayout(type) == nullptr ? std::nullopt : std::optional(type);
}

/// Returns the row of a grid for the chart with an id (the row's data) or a name (the row's text).
std::int32_t RowOfChart(const forms::VSFlexGrid& grid, const std::string& idOrName) {
  ChartNames charts;
  for (std::int32_t row = grid.FixedRows(); row < grid.Rows(); ++row) {
    charts.push_back({grid.RowData(row), grid.TextMatrix(row, 0)});
  }
  const auto places = FindCharts(charts, idOrName);
  if (places.size() > 1) throw ScriptError(SeveralCharts(charts, places, idOrName));
  if (!places.empty()) return grid.FixedRows() + static_cast<std::int32_t>(places.front());
  std::vector<std::string> names;
  for (const auto& [id, name] : charts) names.push_back(id + " " + Quoted(name));
  throw ScriptError("no chart " + Quoted(idOrName) + "; " + ThereAre(names));
}

std::int32_t RowOfTable(const forms::VSFlexGrid& grid, const std::string& id) {
  std::vector<std::string> ids;
  for (std::int32_t row = grid.FixedRows(); row < grid.Rows(); ++row) {
    if (grid.RowData(row) == id) return row;
    ids.push_back(grid.RowData(row));
  }
  throw ScriptError("no table " + Quoted(id) + "; " + ThereAre(ids));
}

/// Presses the button that modifies or copies the selected chart. It is disabled for a chart without a table.
Step WorkStep(const char* button, const std::string& chart) {
  return [button, chart](const forms::Form& page) {
    if (!page.FindControl(button)->Enabled()) {
      throw ScriptError("the table of the chart " + Quoted(chart) +
                        " no longer exists, so the chart can only be deleted");
    }
    return std::string("press ") + button;
  };
}

/// Returns the types that can be chosen, or the reason why there are none.
std::string TypesOrReason(const std::vector<std::string>& types) {
  if (!types.empty()) return ThereAre(types);
  const auto table = colTables->Item(sTableID).selectSingleNode("table");
  const char* const missing = table.selectSingleNode("label-column") ? "number column" : "label column";
  return "it has no " + std::string(missing) +
         ", and every type needs at least one label column and one number column";
}

/// Selects a chart type that the selected table allows.
Step ChartTypeStep(const std::string& type) {
  return [type](const forms::Form& page) -> std::optional<std::string> {
    const auto optionOf = [](const std::string& name) {
      return "optType(" + std::to_string(OptionOfType(name)) + ")";
    };
    const auto& option = ControlOn<forms::OptionButton>(page, optionOf(type));
    if (option.Value()) return std::nullopt;
    if (option.Enabled()) return "choose " + optionOf(type);
    std::vector<std::string> offered;
    for (const std::string& name : ChartTypes()) {
      if (page.FindControl(optionOf(name))->Enabled()) offered.push_back(name);
    }
    throw ScriptError("the table " + Quoted(sTableID) + " doesn't allow the type " + Quoted(type) + "; " +
                      TypesOrReason(offered));
  };
}

}  // namespace

Steps ChartScript::StepsOn(const forms::Form& page) {
  if (page.Name() == page_name::kSelectAction) return OnSelectAction(page);
  if (page.Name() == page_name::kSelectTable) return OnSelectTable(page);
  if (page.Name() == page_name::kChartLocation) return OnChartLocation();
  return OnLayout();
}

bool ChartScript::Resolves(const forms::Form& page, const std::string& message) {
  // The page opens by itself with a message if the chart's table or type can't be used.
  if (page.Name() != page_name::kSelectTable || hasVisitedSelectTable_) return false;
  return message == kNoType ? options_.type.has_value() : options_.table.has_value();
}

Steps ChartScript::OnSelectAction(const forms::Form& page) const {
  if (work_ == ChartWork::kNew) return {PressStep("cmdNew")};
  const std::int32_t row = RowOfChart(ControlOn<forms::VSFlexGrid>(page, "grdCharts"), chart_);
  return {RowsStep("grdCharts", {row}),
          WorkStep(work_ == ChartWork::kModify ? "cmdModify" : "cmdCopy", chart_)};
}

Steps ChartScript::OnSelectTable(const forms::Form& page) {
  hasVisitedSelectTable_ = true;
  if (work_ != ChartWork::kNew && colCharts->Count() == 0) {
    throw ScriptError("no chart " + Quoted(chart_) + "; the workbook has no charts");
  }
  Steps steps;
  if (options_.table) {
    const std::int32_t row = RowOfTable(ControlOn<forms::VSFlexGrid>(page, "grdTables"), *options_.table);
    steps.push_back(RowsStep("grdTables", {row}));
  }
  // An unsuitable table has disabled the chart's own type.
  const auto type = options_.type ? options_.type : TypeInHand();
  if (type) steps.push_back(ChartTypeStep(*type));
  steps.push_back(PressStep("cmdNext"));
  return steps;
}

Steps ChartScript::OnLayout() const {
  if (WantsSelectTable()) return {PressStep("cmdBack")};
  Steps steps = LayoutSteps(options_.layout, sChartType);
  steps.push_back(PressStep(WantsChartLocation() ? "cmdNext" : "cmdFinish"));
  return steps;
}

Steps ChartScript::OnChartLocation() const {
  Steps steps;
  if (options_.sheet) {
    steps.push_back(OptionStep("optTargetSheet(1)", "--sheet"));
    steps.push_back(EntriesStep("cboSheet", {*options_.sheet}, "--sheet", "sheet"));
  }
  if (options_.newSheet) {
    steps.push_back(OptionStep("optTargetSheet(0)", "--new-sheet"));
    steps.push_back(TypeStep("txtSheet", *options_.newSheet, "--new-sheet"));
  }
  if (options_.name) {
    steps.push_back(TypeStep("txtName", *options_.name, "--name"));
  } else if (work_ == ChartWork::kCopy) {
    // The page proposes the title, which is usually the name of the original chart.
    steps.push_back(
        FittingTextStep("txtName", GetAttributeText(oChartDoc.selectSingleNode("chart"), "name")));
  }
  steps.push_back(PressStep("cmdFinish"));
  return steps;
}

bool ChartScript::WantsSelectTable() const {
  return (options_.table || options_.type) && !hasVisitedSelectTable_;
}

bool ChartScript::WantsChartLocation() const {
  return options_.name || options_.sheet || options_.newSheet || work_ == ChartWork::kCopy;
}

Steps DeleteScript::StepsOn(const forms::Form& page) {
  if (std::exchange(done_, true)) return {};  // The page has opened again without the charts.
  if (page.Name() != page_name::kSelectAction) {
    throw ScriptError("no chart " + Quoted(charts_.front()) + "; the workbook has no charts");
  }
  std::vector<std::int32_t> rows;
  for (const std::string& chart : charts_) {
    rows.push_back(RowOfChart(ControlOn<forms::VSFlexGrid>(page, "grdCharts"), chart));
  }
  return {RowsStep("grdCharts", std::move(rows)), [](const forms::Form&) { return std::string("answer ok"); },
          PressStep("cmdDelete")};
}

}  // namespace plotsmith::cli
