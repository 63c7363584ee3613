#pragma once

#include "dom/Dom.h"
#include "host/excel/Excel.h"

namespace plotsmith::cli {

/// How a chart is.
enum class ChartState {
  kOk,           ///< it is drawn
  kUnsupported,  ///< it was changed to a type that isn't drawn
  kTable,        ///< its table is gone, or no longer fits
  kUnavailable,  ///< it couldn't be built
  kNotDrawn      ///< it waits for its first refresh
};

/// As the definition tells and the chart shows. `object` may be Nothing.
ChartState StateOf(const dom::IXMLDOMElement& definition, const excel::Ref<excel::Chart>& object);

/// The state in words.
const char* StateName(ChartState state);
/// Why a chart is in the state, as a sentence, for a chart of which nothing more is known. Empty if it is
/// drawn.
const char* StateReason(ChartState state);

}  // namespace plotsmith::cli
