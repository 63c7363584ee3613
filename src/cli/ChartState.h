#pragma once

#include "dom/Dom.h"
#include "host/excel/Excel.h"

namespace plotsmith::cli {

/// The state of a chart.
enum class ChartState {
  kOk,           ///< The chart is drawn.
  kUnsupported,  ///< The user changed it to an unsupported type.
  kTable,        ///< Its table doesn't exist or no longer fits.
  kUnavailable,  ///< It couldn't be built.
  kNotDrawn      ///< It waits for its first refresh.
};

/// Returns the state from the definition and the chart. `object` may be Nothing.
ChartState StateOf(const dom::IXMLDOMElement& definition, const excel::Ref<excel::Chart>& object);

/// Returns the name of the state for users.
const char* StateName(ChartState state);
/// Returns a sentence that explains the state, for charts without findings. It is empty for drawn charts.
const char* StateReason(ChartState state);

}  // namespace plotsmith::cli
