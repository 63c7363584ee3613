#include "cli/commands/AllCommands.h"

#include "cli/commands/Cells.h"
#include "cli/commands/Charts.h"
#include "cli/commands/Check.h"
#include "cli/commands/Definition.h"
#include "cli/commands/DeleteCharts.h"
#include "cli/commands/EditChart.h"
#include "cli/commands/Format.h"
#include "cli/commands/NewChart.h"
#include "cli/commands/Refresh.h"
#include "cli/commands/RenameColumns.h"
#include "cli/commands/Render.h"
#include "cli/commands/Save.h"
#include "cli/commands/Tables.h"
#include "cli/commands/Wizard.h"

namespace plotsmith::cli {

std::vector<std::unique_ptr<Command>> MakeCommands() {
  std::vector<std::unique_ptr<Command>> commands;
  commands.push_back(std::make_unique<RefreshCommand>());
  commands.push_back(std::make_unique<RenderCommand>());
  commands.push_back(std::make_unique<NewChartCommand>());
  commands.push_back(std::make_unique<EditChartCommand>(
      "modify", "Change a chart; settings without an option don't change", ChartWork::kModify));
  commands.push_back(std::make_unique<EditChartCommand>(
      "copy", "Copy a chart; settings without an option are copied", ChartWork::kCopy));
  commands.push_back(std::make_unique<DeleteChartsCommand>());
  commands.push_back(std::make_unique<WizardCommand>());
  commands.push_back(std::make_unique<RenameColumnsCommand>());
  commands.push_back(std::make_unique<CheckCommand>());
  commands.push_back(std::make_unique<TablesCommand>());
  commands.push_back(std::make_unique<ChartsCommand>());
  commands.push_back(std::make_unique<DefinitionCommand>());
  commands.push_back(std::make_unique<CellsCommand>());
  commands.push_back(std::make_unique<FormatCommand>());
  commands.push_back(std::make_unique<SaveCommand>());
  return commands;
}

}  // namespace plotsmith::cli
