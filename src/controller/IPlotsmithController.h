#pragma once

#include <string>
#include <vector>

#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// The system. Those who only use it call IPlotsmithController.
namespace plotsmith {

/// The component as the host add-in calls it. No operation fails: every error ends in a message box.
class IPlotsmithController {
 public:
  virtual ~IPlotsmithController() = default;

  /// The interactive wizard on the active workbook. `sCustomAppName` is the host add-in's name for itself,
  /// and `sHelpFile` what the Help buttons open. The host and the name of the first call stay for good.
  virtual void RunPlotsmith(runtime::Ref<excel::Application> oApplication, std::string sCustomAppName,
                            std::string sHelpFile) = 0;
  /// Rebuilds all charts of the active workbook, without the wizard. The arguments are those of RunPlotsmith.
  virtual void RefreshPlotsmithData(runtime::Ref<excel::Application> oApplication, std::string sCustomAppName,
                                    std::string sHelpFile) = 0;
  /// Rebuilds the charts that hang on one table, by the table's id.
  virtual void RefreshChartsForTable(runtime::Ref<excel::Application> oApplication,
                                     std::string& sTableRangeName) = 0;
  /// Renames columns in the definitions of one table's charts; both arrays go together by position.
  virtual void UpdateChartColumnNamesForTable(runtime::Ref<excel::Application> oApplication,
                                              std::string sTableRangeName,
                                              std::vector<std::string>& aOldColumnNames,
                                              std::vector<std::string>& aNewColumnNames) = 0;
};

}  // namespace plotsmith
