#pragma once

#include <cstdint>

namespace plotsmith {

class Page;

/// The origin of a move.
namespace origin {
inline constexpr std::int32_t kOutside = 1;  ///< No page: the call of the host, or the controller itself.
inline constexpr std::int32_t kSelectAction = 2;   ///< The page Select Action.
inline constexpr std::int32_t kSelectTable = 3;    ///< The page Source Table.
inline constexpr std::int32_t kLayout = 4;         ///< Any layout page.
inline constexpr std::int32_t kChartLocation = 5;  ///< The page Chart Location.
}  // namespace origin

/// The steps of PSJumpToStep.
namespace step {
inline constexpr std::int32_t kRefresh = 0;   ///< Rebuilds all charts without showing a page.
inline constexpr std::int32_t kStart = 1;     ///< JumpStart
inline constexpr std::int32_t kNext = 6;      ///< JumpNext
inline constexpr std::int32_t kPrevious = 7;  ///< JumpPrevious
inline constexpr std::int32_t kFinish = 8;    ///< JumpFinish
inline constexpr std::int32_t kEnd = 9;       ///< EndRun
}  // namespace step

/// Moves between pages. Pages never open each other: a page asks for a move, and the controller opens the
/// next page.
class Navigation {
 public:
  virtual ~Navigation() = default;

  /// Makes a move. `lStep` is a step and `lFromPage` is an origin. `oPage`, if given, is unloaded first.
  /// Returns when the pages that the move opens are closed.
  virtual void PSJumpToStep(std::int32_t lStep, std::int32_t lFromPage, Page* oPage) = 0;
};

}  // namespace plotsmith
