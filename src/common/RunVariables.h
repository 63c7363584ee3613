#pragma once

#include <cstdint>
#include <string>

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Collection.h"
#include "runtime/Ref.h"

/// The state of a run: one call from the host. What is known of the chart being built is in
/// BuilderVariables.h.
namespace plotsmith {

using DocumentCollection = runtime::Collection<dom::IXMLDOMDocument2>;

extern runtime::Ref<excel::Application> oApplication;  ///< the host: set by the first call, for good
extern std::string sCustomAppName;                     ///< the host's name for itself, likewise
extern runtime::Ref<excel::Workbook> oWorkbook;        ///< the workbook worked on

extern runtime::Ref<DocumentCollection> colTables;  ///< table documents by table id; Nothing until discovered
extern runtime::Ref<DocumentCollection> colCharts;  ///< chart documents by chart id; Nothing until loaded
/// Charts, and the comment boxes of those that have one, by chart id.
extern runtime::Ref<runtime::Collection<runtime::Ref<excel::Chart>>> colChartObjects;
extern runtime::Ref<runtime::Collection<runtime::Ref<excel::Shape>>> colChartShapes;

extern dom::IXMLDOMDocument2 oChartDoc;  ///< the document being edited
extern std::int32_t lMethodType;         ///< what the run is doing, see PSConstants.h; kept between runs
extern std::string sChartType;           ///< of the chart in hand; "unknown" without one
extern std::string sChartID;             ///< of the chart in hand
extern std::string sTableID;             ///< the source table of the chart in hand
extern std::string sPendingMessage;      ///< what the next ShowMessage with nothing to say shows
extern bool bRunAborted;                 ///< the run ended in an error
extern bool bUnloadingPage;              ///< the controller, and not the user, is closing a page

/// Everything back to how the component starts, the host included.
void ResetRunVariables();

}  // namespace plotsmith
