#pragma once

#include <vector>

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Border;
class DataLabels;
class Interior;

/// One series of a chart. Error 1004 once it has been deleted.
class Series {
 public:
  virtual ~Series() = default;

  /// As the legend shows it; "Series1" and so on for a series without one.
  virtual std::string Name() = 0;
  /// A literal text, or the reference of a cell as SetValues takes it.
  virtual void SetName(const Variant& name) = 0;
  /// "=SERIES(name,categories,values,order)", each as it stands in the chart.
  virtual std::string Formula() = 0;
  /// The reference of the categories, or of the X values, as SetValues takes it.
  virtual void SetXValues(const Variant& reference) = 0;
  /// The values, one for each point; Empty where there is none.
  virtual std::vector<Variant> Values() = 0;
  /// A reference to cells of this workbook, which begins with "=", in A1 or in R1C1 style. Error 1004 for
  /// anything else.
  virtual void SetValues(const Variant& reference) = 0;
  /// As SetValues; Excel wants it in R1C1 style. Sizes of a series that isn't drawn as bubbles wait until it
  /// is.
  virtual void SetBubbleSizes(const Variant& reference) = 0;

  /// XlChartType; xlCombination for a line of which only the markers show, as Excel has no type for it.
  virtual std::int32_t ChartType() = 0;
  /// A type of its own for this series. Error 1004 for one that can't stand beside the others'.
  virtual void SetChartType(std::int32_t type) = 0;
  /// Takes the series out of the chart, and its entry out of the legend.
  virtual void Delete() = 0;

  /// Whether any point shows a label. Labels that are made so show the values.
  ///@{
  virtual bool HasDataLabels() = 0;
  virtual void SetHasDataLabels(bool value) = 0;
  ///@}

  /// Shows labels of one of Excel's types (XlDataLabelsType), other than bubble sizes; error 1004 for others.
  virtual void ApplyDataLabels(std::int32_t type) = 0;
  /// Nothing while there are no labels.
  virtual Ref<excel::DataLabels> DataLabels() = 0;

  /// The filling of columns, areas, slices or bubbles.
  virtual Ref<excel::Interior> Interior() = 0;
  /// Their outline, or the line of a series that is one.
  virtual Ref<excel::Border> Border() = 0;

  /// The outline and the filling of markers. Error 1004 for a series without markers, such as one of columns.
  ///@{
  virtual void SetMarkerForegroundColor(std::int32_t color) = 0;
  virtual void SetMarkerBackgroundColor(std::int32_t color) = 0;
  ///@}

  /// XlMarkerStyle; error 1004 for others, and for a series without markers.
  virtual void SetMarkerStyle(std::int32_t style) = 0;
  /// Points from 2 to 72; error 1004 outside, and for a series without markers.
  virtual void SetMarkerSize(std::int32_t points) = 0;
};

}  // namespace plotsmith::excel
