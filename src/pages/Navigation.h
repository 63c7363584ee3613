#pragma once

#include <cstdint>

namespace plotsmith {

class Page;

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

/// The way from page to page. Pages never open each other: each one asks for a move, and the controller,
/// which stands above the pages, opens the next one.
class Navigation {
 public:
  virtual ~Navigation() = default;

  /// `lStep` is a step, `lFromPage` an origin; `oPage`, if there is one, is unloaded first. The call returns
  /// when the pages that the move opens have gone.
  virtual void PSJumpToStep(std::int32_t lStep, std::int32_t lFromPage, Page* oPage) = 0;
};

}  // namespace plotsmith
