#pragma once

#include <cstdint>
#include <string>

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Collection.h"
#include "runtime/Ref.h"

/// The state of a run, which is one call from the host. BuilderVariables.h has the state of the chart being
/// built.
namespace plotsmith {

using DocumentCollection = runtime::Collection<dom::IXMLDOMDocument2>;

extern runtime::Ref<excel::Application> oApplication;  ///< the host of the first call
extern std::string sCustomAppName;                     ///< the host's name in the first call
extern runtime::Ref<excel::Workbook> oWorkbook;        ///< the workbook of the run

extern runtime::Ref<DocumentCollection> colTables;  ///< table documents by table id; Nothing until discovered
extern runtime::Ref<DocumentCollection> colCharts;  ///< chart documents by chart id; Nothing until loaded
/// The charts, and the comment boxes of charts that have one, by chart id.
extern runtime::Ref<runtime::Collection<runtime::Ref<excel::Chart>>> colChartObjects;
extern runtime::Ref<runtime::Collection<runtime::Ref<excel::Shape>>> colChartShapes;

extern dom::IXMLDOMDocument2 oChartDoc;  ///< the document being edited
extern std::int32_t lMethodType;         ///< the task of the run, see PSConstants.h; kept between runs
extern std::string sChartType;           ///< of the current chart; "unknown" without one
extern std::string sChartID;             ///< of the current chart
extern std::string sTableID;             ///< the source table of the current chart
extern std::string sPendingMessage;      ///< the text of the next ShowMessage without a text
extern bool bRunAborted;                 ///< the run ended in an error
extern bool bUnloadingPage;              ///< the controller, and not the user, is closing a page

/// Resets all of these variables, including the host, to their values at the start of the component.
void ResetRunVariables();

}  // namespace plotsmith
