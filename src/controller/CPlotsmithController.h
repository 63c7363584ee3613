#pragma once

#include <vector>

#include "controller/IPlotsmithController.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// The public class of the component. It has no state: it stores the host in the variables of the run and
/// calls PSController.
class CPlotsmithController : public IPlotsmithController {
 public:
  void RunPlotsmith(runtime::Ref<excel::Application> oApplication, std::string sCustomAppName,
                    std::string sHelpFile) override;
  void RefreshPlotsmithData(runtime::Ref<excel::Application> oApplication, std::string sCustomAppName,
                            std::string sHelpFile) override;
  void RefreshChartsForTable(runtime::Ref<excel::Application> oApplication,
                             std::string& sTableRangeName) override;
  void UpdateChartColumnNamesForTable(runtime::Ref<excel::Application> oApplication,
                                      std::string sTableRangeName, std::vector<std::string>& aOldColumnNames,
                                      std::vector<std::string>& aNewColumnNames) override;
};

}  // namespace plotsmith
