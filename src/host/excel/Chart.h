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

  virtual Ref<excel::Application> Application() = 0;

  /// Moves all series to the type. Error 1004 for a type that the host can't draw.
  virtual void SetChartType(std::int32_t type) = 0;

  virtual Ref<excel::SeriesCollection> SeriesCollection() = 0;

  virtual void SetHasTitle(bool value) = 0;
  /// Error 1004 while there is no title.
  virtual Ref<excel::ChartTitle> ChartTitle() = 0;

  virtual void SetHasLegend(bool value) = 0;
  /// Error 1004 while there is no legend.
  virtual Ref<excel::Legend> Legend() = 0;

  /// `type` is xlCategory or xlValue, of the primary group.
  virtual bool HasAxis(std::int32_t type) = 0;
  virtual void SetHasAxis(std::int32_t type, bool value) = 0;
  /// Error 1004 if the chart has no such axis. `group` is xlPrimary.
  virtual Ref<Axis> Axes(std::int32_t type, std::int32_t group) = 0;

  virtual Ref<excel::ChartArea> ChartArea() = 0;
  virtual Ref<excel::PlotArea> PlotArea() = 0;
  /// XlChartType of the chart, or of its first series where types are mixed.
  virtual std::int32_t ChartType() = 0;
  virtual bool HasTitle() = 0;
  virtual bool HasLegend() = 0;
  /// The shapes drawn on the chart itself.
  virtual Ref<excel::Shapes> Shapes() = 0;
  /// A group of series of one kind, by its number in drawing order; error 1004 outside.
  virtual Ref<ChartGroup> ChartGroups(std::int32_t index) = 0;
};

}  // namespace plotsmith::excel
