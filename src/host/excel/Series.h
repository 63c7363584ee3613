#pragma once

#include <vector>

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Border;
class DataLabels;
class Interior;

/// One series of a chart.
class Series {
 public:
  virtual ~Series() = default;

  /// A literal text, or a reference that begins with "=", in A1 or in R1C1 style; so for the two below.
  virtual void SetName(const Variant& name) = 0;
  virtual void SetXValues(const Variant& reference) = 0;
  virtual void SetValues(const Variant& reference) = 0;
  /// `type` is one of Excel's label types (XlDataLabelsType).
  virtual void ApplyDataLabels(std::int32_t type) = 0;
  /// Nothing while there are no labels.
  virtual Ref<excel::DataLabels> DataLabels() = 0;
  virtual void Delete() = 0;
  virtual std::string Name() = 0;
  /// "=SERIES(name,categories,values,order)", each as it stands in the chart.
  virtual std::string Formula() = 0;
  /// XlChartType.
  virtual std::int32_t ChartType() = 0;
  /// A type of its own for this series. Error 1004 for one that can't stand beside the others'.
  virtual void SetChartType(std::int32_t type) = 0;
  virtual bool HasDataLabels() = 0;
  virtual void SetHasDataLabels(bool value) = 0;
  /// The values, one for each point; Empty where there is none.
  virtual std::vector<Variant> Values() = 0;
  /// A reference in R1C1 style, or in A1 style.
  virtual void SetBubbleSizes(const Variant& reference) = 0;
  virtual Ref<excel::Interior> Interior() = 0;
  virtual Ref<excel::Border> Border() = 0;
  virtual void SetMarkerForegroundColor(std::int32_t color) = 0;
  virtual void SetMarkerBackgroundColor(std::int32_t color) = 0;
  /// XlMarkerStyle.
  virtual void SetMarkerStyle(std::int32_t style) = 0;
  /// Points from 2 to 72.
  virtual void SetMarkerSize(std::int32_t points) = 0;
};

}  // namespace plotsmith::excel
