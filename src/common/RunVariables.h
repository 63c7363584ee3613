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

/// XML documents by their ids.
using DocumentCollection = runtime::Collection<dom::IXMLDOMDocument2>;

extern runtime::Ref<excel::Application> oApplication;  ///< The host of the first call.
extern std::string sCustomAppName;                     ///< The name of the host in the first call.
extern runtime::Ref<excel::Workbook> oWorkbook;        ///< The workbook of the run.

extern runtime::Ref<DocumentCollection> colTables;  ///< The tables by id; Nothing until they are found.
extern runtime::Ref<DocumentCollection>
    colCharts;  ///< The definitions by chart id; Nothing until they are loaded.
/// The charts, and the comment boxes of charts that have one, by chart id.
///@{
extern runtime::Ref<runtime::Collection<runtime::Ref<excel::Chart>>> colChartObjects;
extern runtime::Ref<runtime::Collection<runtime::Ref<excel::Shape>>> colChartShapes;
///@}

extern dom::IXMLDOMDocument2 oChartDoc;  ///< The definition that is being edited.
/// The task of the run, from the namespace `method`. It is kept between runs.
extern std::int32_t lMethodType;
extern std::string sChartType;       ///< The type of the current chart; "unknown" if there is none.
extern std::string sChartID;         ///< The id of the current chart.
extern std::string sTableID;         ///< The id of the source table of the current chart.
extern std::string sPendingMessage;  ///< The text that ShowMessage shows if it gets none.
extern bool bRunAborted;             ///< Whether the run ended in an error.
extern bool bUnloadingPage;          ///< Whether the controller, and not the user, is closing a page.

/// Resets all of these variables, including the host, to their values at the start of the component.
void ResetRunVariables();

}  // namespace plotsmith
