#include "cli/ChartState.h"

#include "common/Documents.h"
#include "common/ErrorBlocks.h"

namespace plotsmith::cli {

ChartState StateOf(const dom::IXMLDOMElement& definition, const excel::Ref<excel::Chart>& object) {
  if (GetAttributeText(definition, "type") == "unknown") return ChartState::kUnsupported;
  if (GetAttributeText(definition, "table-corrupted") == "yes") return ChartState::kTable;
  // A chart that can't be built has lost its series. It isn't crosshatched if its area has a fill, and the
  // wizard repairs a chart without updating `chart-area-crosshatched`, so the series decide.
  if (ValueOr(false, [&] { return object->SeriesCollection()->Count() > 0; })) return ChartState::kOk;
  return GetAttributeText(definition, "chart-area-crosshatched") == "yes" ? ChartState::kUnavailable
                                                                          : ChartState::kNotDrawn;
}

const char* StateName(ChartState state) {
  switch (state) {
    case ChartState::kOk:
      return "ok";
    case ChartState::kUnsupported:
      return "unsupported type";
    case ChartState::kTable:
      return "table no longer fits";
    case ChartState::kUnavailable:
      return "unavailable";
    case ChartState::kNotDrawn:
      return "not drawn";
  }
  return "";
}

const char* StateReason(ChartState state) {
  switch (state) {
    case ChartState::kOk:
      return "";
    case ChartState::kUnsupported:
      return "The chart was changed to a type that isn't supported.";
    case ChartState::kTable:
      return "The table of the chart was missing or didn't fit when the chart was last refreshed.";
    case ChartState::kUnavailable:
      return "The chart couldn't be built when it was last refreshed; a refresh reports the reason.";
    case ChartState::kNotDrawn:
      return "The chart waits for a refresh.";
  }
  return "";
}

}  // namespace plotsmith::cli
