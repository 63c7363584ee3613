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

/// A chart on a worksheet or on a chart sheet.
class Chart {
 public:
  virtual ~Chart() = default;

  /// The host in which the chart is open.
  virtual Ref<excel::Application> Application() = 0;

  /// The chart type (XlChartType), or xlCombination if the series have several types.
  virtual std::int32_t ChartType() = 0;
  /// Sets the type of all series. Raises error 1004 for a type that the host can't draw.
  virtual void SetChartType(std::int32_t type) = 0;
  /// The series of all chart groups.
  virtual Ref<excel::SeriesCollection> SeriesCollection() = 0;
  /// Returns a chart group by its index in drawing order: areas, columns or bars, lines, all others. Raises
  /// error 1004 if the index is out of range.
  virtual Ref<ChartGroup> ChartGroups(std::int32_t index) = 0;

  /// Whether the chart has a title. A chart with a single series shows the name of the series until its title
  /// is deleted. Setting it to false deletes the text and the format of the title.
  ///@{
  virtual bool HasTitle() = 0;
  virtual void SetHasTitle(bool value) = 0;
  ///@}

  /// The title. Raises error 1004 if the chart has none.
  virtual Ref<excel::ChartTitle> ChartTitle() = 0;

  /// Whether the chart has its built-in legend. A new legend is on the right. Setting it to false deletes the
  /// format and the position of the legend.
  ///@{
  virtual bool HasLegend() = 0;
  virtual void SetHasLegend(bool value) = 0;
  ///@}

  /// The legend. Raises error 1004 if the chart has none.
  virtual Ref<excel::Legend> Legend() = 0;

  /// Returns true if an axis of the primary group is shown. `type` is xlCategory or xlValue.
  virtual bool HasAxis(std::int32_t type) = 0;
  /// Shows or hides an axis. A hidden axis keeps its settings. Raises error 1004 if the chart's type has no
  /// such axis.
  virtual void SetHasAxis(std::int32_t type, bool value) = 0;
  /// Returns an axis. `group` is xlPrimary. Raises error 1004 if the chart's type has no such axis; older
  /// versions of Excel raise it for hidden axes as well.
  virtual Ref<Axis> Axes(std::int32_t type, std::int32_t group) = 0;

  /// The area of the whole chart, behind all other elements.
  virtual Ref<excel::ChartArea> ChartArea() = 0;
  /// The area in which the series are drawn.
  virtual Ref<excel::PlotArea> PlotArea() = 0;
  /// The shapes on the chart.
  virtual Ref<excel::Shapes> Shapes() = 0;
};

}  // namespace plotsmith::excel
