#include "common/RunVariables.h"

namespace plotsmith {

runtime::Ref<excel::Application> oApplication;
std::string sCustomAppName;
runtime::Ref<excel::Workbook> oWorkbook;
runtime::Ref<DocumentCollection> colTables;
runtime::Ref<DocumentCollection> colCharts;
runtime::Ref<runtime::Collection<runtime::Ref<excel::Chart>>> colChartObjects;
runtime::Ref<runtime::Collection<runtime::Ref<excel::Shape>>> colChartShapes;
dom::IXMLDOMDocument2 oChartDoc;
std::int32_t lMethodType = 0;
std::string sChartType = "unknown";
std::string sChartID;
std::string sTableID;
std::string sPendingMessage;
bool bRunAborted = false;
bool bUnloadingPage = false;

void ResetRunVariables() {
  colTables = nullptr;
  colCharts = nullptr;
  colChartObjects = nullptr;
  colChartShapes = nullptr;
  oChartDoc = {};
  oWorkbook = nullptr;
  oApplication = nullptr;
  sCustomAppName.clear();
  lMethodType = 0;
  sChartType = "unknown";
  sChartID.clear();
  sTableID.clear();
  sPendingMessage.clear();
  bRunAborted = false;
  bUnloadingPage = false;
}

}  // namespace plotsmith
