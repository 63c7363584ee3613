#pragma once

#include <cstdint>

#include "pages/Navigation.h"

/// @file
/// Module PSController: a run from the host's call to its end, and the navigation between the wizard's pages.
/// Pages never open each other. Each page checks its own input and calls PSJumpToStep.
namespace plotsmith {

/// Executes a run. `lMode` is 0 for the wizard and 1 for the refresh of all charts.
void ExecuteRun(std::int32_t lMode);
/// Makes every move between pages. `lStep` is a step, and `lFromPage` is an origin. `oPage`, if given, is
/// unloaded first. An error is reported and ends the run.
void PSJumpToStep(std::int32_t lStep, std::int32_t lFromPage, Page* oPage);
/// Finds the tables, loads the definitions and shows the first page.
void JumpStart();
/// Opens the next page. From the last page it refreshes the chart instead. `lFromPage` is an origin.
void JumpNext(std::int32_t lFromPage);
/// Opens the previous page. On the return to Select Action, the chart that was being edited is discarded.
void JumpPrevious(std::int32_t lFromPage);
/// Goes through the remaining pages and skips those whose input is valid.
void JumpFinish(std::int32_t lFromPage);
/// Shows a page: 0 is Select Action, 1 is Source Table, 2 to 7 are the layouts of area, bar, bubble, column,
/// strategic bucket and pie, and 8 is Chart Location. Other numbers open nothing. Returns when the page is
/// closed.
void ShowPage(std::int32_t lPage);
/// Closes a page. This doesn't count as a cancellation.
void UnloadPage(Page& oPage);
/// Discards all pages, including loaded ones.
void ResetPages();
/// Releases the state of the run. Does nothing while the controller itself changes pages.
void EndRun();

}  // namespace plotsmith
