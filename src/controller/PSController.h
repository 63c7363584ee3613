#pragma once

#include <cstdint>

#include "controller/Pages.h"

/// @file
/// Module PSController: one run, from the host's call to its end, and the way through the wizard's pages.
/// Pages never open each other; each judges its own input and calls PSJumpToStep.
namespace plotsmith {

/// Where a move comes from.
namespace origin {
inline constexpr std::int32_t kOutside = 1;        ///< no page: the host's call, or the controller itself
inline constexpr std::int32_t kSelectAction = 2;   ///< the page Select Action
inline constexpr std::int32_t kSelectTable = 3;    ///< the page Source Table
inline constexpr std::int32_t kLayout = 4;         ///< any of the layout pages
inline constexpr std::int32_t kChartLocation = 5;  ///< the page Chart Location
}  // namespace origin

/// What PSJumpToStep does.
namespace step {
inline constexpr std::int32_t kRefresh = 0;   ///< rebuilds all charts, without a page
inline constexpr std::int32_t kStart = 1;     ///< JumpStart
inline constexpr std::int32_t kNext = 6;      ///< JumpNext
inline constexpr std::int32_t kPrevious = 7;  ///< JumpPrevious
inline constexpr std::int32_t kFinish = 8;    ///< JumpFinish
inline constexpr std::int32_t kEnd = 9;       ///< EndRun
}  // namespace step

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
/// pie, 8 Chart Location; any other number opens none. Returns when the page is gone. Error 1004 in a program
/// without a wizard.
void ShowPage(std::int32_t lPage);
/// Closes a page without taking it for a cancellation.
void UnloadPage(Page& oPage);
/// Releases the state of the run; does nothing while the controller itself changes pages.
void EndRun();

}  // namespace plotsmith
