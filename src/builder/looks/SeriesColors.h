#pragma once

#include <string>

#include "builder/looks/ChartAttributes.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/CPSColor.h"
#include "common/Values.h"
#include "host/excel/Excel.h"
#include "runtime/Collection.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// Module PSChartBuilder: one colour for each series name of a bubble or strategic bucket chart, in which
/// several series bear one name. The host gives each new series the next automatic colour. The n-th name
/// takes the n-th of them, whichever series that was, so that repeated names leave no gaps in the palette.
class SeriesColors {
 public:
  /// Makes `mSeriesColors` new.
  SeriesColors();

  /// Takes the automatic colour of a series that was just made and named, and takes the legend entry of a
  /// repeated name away. `run` gets each statement, and decides what becomes of an error in it.
  template <class Run>
  void Harvest(const runtime::Ref<excel::Series>& oSeries, const std::string& sName, const Run& run) {
    const auto oColor = runtime::MakeRef<CPSColor>();
    ++lSeriesCount_;
    run([&] { oColor->SetColor(oSeries->Interior()->Color()); });
    run([&] { oColor->SetColorIndex(oSeries->Interior()->ColorIndex()); });
    run([&] { oColor->SetPattern(oSeries->Interior()->Pattern()); });
    run([&] { oColor->SetPatternColor(oSeries->Interior()->PatternColor()); });
    run([&] { oColor->SetPatternColorIndex(oSeries->Interior()->PatternColorIndex()); });
    run([&] { colSeriesColors_.Add(oColor, "KEY" + std::to_string(lSeriesCount_)); });
    if (!CollectionHasKey(sName, mSeriesColors)) {
      ++lColorCount_;
      run([&] { mSeriesColors->Add(colSeriesColors_.Item("KEY" + std::to_string(lColorCount_)), sName); });
      return;
    }
    bool bLegend = false;
    run([&] { bLegend = mChart->HasLegend(); });
    if (bLegend) run(DeleteLastLegendEntry);
  }

  /// Paints a series in the colour of its name. One whose name has none, as a placeholder, takes the colour
  /// of the series before. What the host refuses is passed over.
  void Paint(const runtime::Ref<excel::Series>& oSeries);

 private:
  runtime::Collection<runtime::Ref<CPSColor>> colSeriesColors_;  ///< by "KEY" and a running number
  runtime::Ref<CPSColor> oCurrent_;
  std::int32_t lSeriesCount_ = 0;  ///< named series so far
  std::int32_t lColorCount_ = 0;   ///< names so far
};

}  // namespace plotsmith
