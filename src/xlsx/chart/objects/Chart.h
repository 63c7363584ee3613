#pragma once

#include <memory>

#include "host/excel/Chart.h"
#include "xlsx/drawing/ShapeXml.h"

namespace plotsmith::xlsx {

class ChartPart;
class DrawnShape;

/// A chart for the port: a view over its part.
class Chart final : public excel::Chart {
 public:
  /// `frame` is the shape that contains the chart on a sheet; empty for a chart sheet.
  Chart(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame);

  excel::Ref<excel::Application> Application() override;
  std::int32_t ChartType() override;
  void SetChartType(std::int32_t type) override;
  excel::Ref<excel::SeriesCollection> SeriesCollection() override;
  bool HasTitle() override;
  void SetHasTitle(bool value) override;
  excel::Ref<excel::ChartTitle> ChartTitle() override;
  bool HasLegend() override;
  void SetHasLegend(bool value) override;
  excel::Ref<excel::Legend> Legend() override;
  bool HasAxis(std::int32_t type) override;
  void SetHasAxis(std::int32_t type, bool value) override;
  excel::Ref<excel::Axis> Axes(std::int32_t type, std::int32_t group) override;
  excel::Ref<excel::ChartGroup> ChartGroups(std::int32_t index) override;
  excel::Ref<excel::ChartArea> ChartArea() override;
  excel::Ref<excel::PlotArea> PlotArea() override;
  excel::Ref<excel::Shapes> Shapes() override;

  /// The part of the chart.
  ChartPart& Part() const { return *part_; }
  /// The width and height of the frame on the sheet, or of the chart sheet's page, in points.
  Frame Size() const;

 private:
  std::shared_ptr<ChartPart> part_;
  std::weak_ptr<DrawnShape> frame_;
};

}  // namespace plotsmith::xlsx
