#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "builder/state/CPSColor.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// The reads of a series' fill, in order. Each may raise an error.
extern const std::array<void (*)(excel::Series& oSeries, CPSColor& oFill), 5> kFillReads;

/// Module PSChartBuilder: one colour for each series name of a bubble or strategic bucket chart, in which
/// several series can have the same name. The host gives each new series the next automatic colour. The n-th
/// name gets the n-th of these colours, even if another series had it, so that repeated names leave no gaps
/// in the palette.
class SeriesColors {
 public:
  /// Empties `mSeriesColors`.
  SeriesColors();

  /// Reads the automatic fill of a series that was just added and named. Returns True if the name is new.
  /// Raises the error of a collection that refuses the name.
  bool Take(runtime::Ref<CPSColor> oFill, const std::string& sName);

  /// Paints a series in the colour of its name. A series whose name has no colour, such as a placeholder,
  /// gets the colour of the previous series. Calls that the host refuses are ignored.
  void Paint(const runtime::Ref<excel::Series>& oSeries);

 private:
  std::vector<runtime::Ref<CPSColor>> aFills_;  ///< in the order in which the series were added
  std::size_t lNames_ = 0;                      ///< the number of different names
  runtime::Ref<CPSColor> oCurrent_;
};

}  // namespace plotsmith
