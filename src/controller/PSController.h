#pragma once

#include <cstdint>

#include "pages/Navigation.h"

/// @file
/// Module PSController: one run, from the host's call to its end, and the way through the wizard's pages.
/// Pages never open each other; each judges its own input and calls PSJumpToStep.
namespace plotsmith {

/// `lMode` 0 is the wizard, 1 the refresh of all charts.
void ExecuteRun(std::int32_t lMode);
/// The one entrance for all moves. `lStep` is a step, `lFromPage` an origin; `oPage`, if there is one, is
/// unloaded first. An error on the way is reported and ends the run.
void PSJumpToStep(std::int32_t lStep, std::int32_t lFromPage, Page* oPage);
/// Discovers tables, loads definitions, and shows the first page.
void JumpStart();
/// Opens the page that follows; from the last one, refreshes the chart. `lFromPage` is an origin.
void JumpNext(std::int32_t lFromPage);
/// Opens the page before; back on Select Action, the chart in hand is forgotten.
void JumpPrevious(std::int32_t lFromPage);
/// On through the remaining pages, without showing those whose input is valid.
void JumpFinish(std::int32_t lFromPage);
/// 0 Select Action, 1 Source Table, 2 to 7 the layouts of area, bar, bubble, column, strategic bucket and
/// pie, 8 Chart Location; any other number opens none. Returns when the page is gone.
void ShowPage(std::int32_t lPage);
/// Closes a page without taking it for a cancellation.
void UnloadPage(Page& oPage);
/// Forgets all pages, loaded ones as well.
void ResetPages();
/// Releases the state of the run; does nothing while the controller itself changes pages.
void EndRun();

}  // namespace plotsmith
