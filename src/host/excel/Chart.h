#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Application;
class Axis;
class ChartArea;
class ChartGroup;
class ChartTitle;
class Legend;
class PlotArea;
class SeriesCollection;
class Shapes;

/// A chart, on a sheet or a sheet of its own.
class Chart {
 public:
  virtual ~Chart() = default;

  /// The host that has the chart open.
  virtual Ref<excel::Application> Application() = 0;

  /// XlChartType of all series, or xlCombination where they are of several types.
  virtual std::int32_t ChartType() = 0;
  /// Moves all series to the type. Error 1004 for a type that the host can't draw.
  virtual void SetChartType(std::int32_t type) = 0;
  /// Of all groups.
  virtual Ref<excel::SeriesCollection> SeriesCollection() = 0;
  /// A group of series of one kind, by its number in drawing order: areas, columns or bars, lines, all
  /// others. Error 1004 outside.
  virtual Ref<ChartGroup> ChartGroups(std::int32_t index) = 0;

  /// Whether the chart shows a title. A chart of a single series shows that one's name, until its title is
  /// taken away. A title that is taken away is gone with its text and its look.
  ///@{
  virtual bool HasTitle() = 0;
  virtual void SetHasTitle(bool value) = 0;
  ///@}

  /// Error 1004 while there is no title.
  virtual Ref<excel::ChartTitle> ChartTitle() = 0;

  /// Whether the chart has its built-in legend. A new one stands at the right; one that is taken away is gone
  /// with its look and its place.
  ///@{
  virtual bool HasLegend() = 0;
  virtual void SetHasLegend(bool value) = 0;
  ///@}

  /// Error 1004 while there is no legend.
  virtual Ref<excel::Legend> Legend() = 0;

  /// Whether an axis is shown. `type` is xlCategory or xlValue, of the primary group.
  virtual bool HasAxis(std::int32_t type) = 0;
  /// A hidden axis keeps its settings. Error 1004 if the chart's type has no such axis.
  virtual void SetHasAxis(std::int32_t type, bool value) = 0;
  /// Error 1004 if the chart's type has no such axis; in older versions of Excel, hidden ones fail as well.
  /// `group` is xlPrimary.
  virtual Ref<Axis> Axes(std::int32_t type, std::int32_t group) = 0;

  /// The whole of the chart, behind everything else.
  virtual Ref<excel::ChartArea> ChartArea() = 0;
  /// The part in which the series are drawn.
  virtual Ref<excel::PlotArea> PlotArea() = 0;
  /// The shapes drawn on the chart itself.
  virtual Ref<excel::Shapes> Shapes() = 0;
};

}  // namespace plotsmith::excel
