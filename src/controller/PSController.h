#pragma once

#include <cstdint>

#include "controller/Pages.h"

/// Module PSController: one run, from the host's call to its end, and the way through the wizard's pages.
/// Pages never open each other; each judges its own input and calls PSJumpToStep.
namespace plotsmith {

/// Where a move comes from.
namespace origin {
inline constexpr std::int32_t kOutside = 1;
inline constexpr std::int32_t kSelectAction = 2;
inline constexpr std::int32_t kSelectTable = 3;
inline constexpr std::int32_t kLayout = 4;
inline constexpr std::int32_t kChartLocation = 5;
}  // namespace origin

/// What PSJumpToStep does.
namespace step {
inline constexpr std::int32_t kRefresh = 0;
inline constexpr std::int32_t kStart = 1;
inline constexpr std::int32_t kNext = 6;
inline constexpr std::int32_t kPrevious = 7;
inline constexpr std::int32_t kFinish = 8;
inline constexpr std::int32_t kEnd = 9;
}  // namespace step

/// `lMode` 0 is the wizard, 1 the refresh of all charts.
void ExecuteRun(std::int32_t lMode);
/// The one entrance for all moves. `oPage`, if there is one, is unloaded first.
void PSJumpToStep(std::int32_t lStep, std::int32_t lFromPage, Page* oPage);
/// Discovers tables, loads definitions, and shows the first page.
void JumpStart();
/// Opens the page that follows; from the last one, refreshes the chart. `lFromPage` is an origin.
void JumpNext(std::int32_t lFromPage);
/// Opens the page before.
void JumpPrevious(std::int32_t lFromPage);
/// On through the remaining pages, without showing those whose input is valid.
void JumpFinish(std::int32_t lFromPage);
/// 0 Select Action, 1 Source Table, 2 to 7 the layouts of area, bar, bubble, column, strategic bucket and
/// pie, 8 Chart Location. Returns when the page is gone.
void ShowPage(std::int32_t lPage);
/// Closes a page without taking it for a cancellation.
void UnloadPage(Page& oPage);
/// Releases the state of the run; does nothing while the controller itself changes pages.
void EndRun();

}  // namespace plotsmith
