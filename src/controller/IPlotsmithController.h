#pragma once

#include <string>
#include <vector>

#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// The system. Callers from outside use only IPlotsmithController.
namespace plotsmith {

/// The component's interface for the host add-in. Operations never throw: every error is shown in a message
/// box.
class IPlotsmithController {
 public:
  virtual ~IPlotsmithController() = default;

  /// Runs the wizard on the active workbook. `sCustomAppName` is the name of the host add-in, and `sHelpFile`
  /// is the file that the Help buttons open. The host and the name of the first call are kept for all later
  /// calls.
  virtual void RunPlotsmith(runtime::Ref<excel::Application> oApplication, std::string sCustomAppName,
                            std::string sHelpFile) = 0;
  /// Rebuilds all charts of the active workbook without the wizard. The arguments are those of RunPlotsmith.
  virtual void RefreshPlotsmithData(runtime::Ref<excel::Application> oApplication, std::string sCustomAppName,
                                    std::string sHelpFile) = 0;
  /// Rebuilds the charts of one table. `sTableRangeName` is the id of the table.
  virtual void RefreshChartsForTable(runtime::Ref<excel::Application> oApplication,
                                     std::string& sTableRangeName) = 0;
  /// Renames columns in the definitions of the charts of one table. Each old name corresponds to the new name
  /// at the same position.
  virtual void UpdateChartColumnNamesForTable(runtime::Ref<excel::Application> oApplication,
                                              std::string sTableRangeName,
                                              std::vector<std::string>& aOldColumnNames,
                                              std::vector<std::string>& aNewColumnNames) = 0;
};

}  // namespace plotsmith
